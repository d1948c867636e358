; The routine of the sample window. (window) is the whole road: the user chooses a variant, sets the
; parameters, gives a point, and the window is drawn there at scale 1, in plan and, above it, in elevation.
;
;   (window-preview)                 shows the preview picture: 0 after Enter, nil otherwise
;   (window-draw VARIANT VALUES AT)  draws without asking
;
; The parameters, by number:
;    1 width            2 height             3 sill height         4 wall thickness
;    5 set back         6 frame width        7 frame depth         8 number of sashes
;    9 sash width      10 sash depth        11 bars across        12 bars upright
;   13 bar width       14 opening angle     15 glass thickness    16 sill projection
;   17 sill thickness  18 handle height     19 transmittance      20 rise of the arch

(load "item.lsp")

(setq window-variants '("casement" "tilt" "fixed" "sliding" "arched")
      window-wall     300.0   ; how much of the wall is drawn on each side
      window-text     50.0)   ; height of texts

(defun window (/ *error* variant values at)
  (setq *error* item-error)
  (and (setq variant (item-choose "window" window-variants))
       (setq values (item-edit "window" nil '(lambda (values) (window-check variant values))))
       (setq at (item-place "window" '(lambda (at) (window-draw variant values at))))
       (window-draw variant values at)
       (item-show)))

(defun window-preview ()
  (tavrinprevmask "window_preview"))

; Whether the values make a window that can be drawn.
(defun window-check (variant values)
  (and (item-complete values 20)
       (item-positive values '(1 2 4 6 7 8 9 10 13 15))
       (item-between values 8 1 8)
       (item-between values 11 0 20)
       (item-between values 12 0 20)
       (item-between values 14 0 170)
       (item-demand (<= (+ (item-of values 5) (item-of values 7)) (item-of values 4))
                    (item-words 5121 "%1: set back so far, the frame leaves the wall."
                                (list (item-label 5))))
       (item-demand (or (/= variant "arched")
                        (and (> (item-of values 20) (item-of values 6))
                             (<= (* 2 (item-of values 20)) (item-of values 1))))
                    (item-words 5122 "%1: the arch must rise above the frame's width, by half the width at most."
                                (list (item-label 20))))
       (item-demand (< (+ (* 2 (item-of values 9)) (* (item-of values 12) (item-of values 13)))
                       (window-sash-width variant values))
                    (item-words 5123 "%1: the window is too narrow for its sashes and bars."
                                (list (item-label 1))))
       (item-demand (< (+ (* 2 (item-of values 9)) (* (item-of values 11) (item-of values 13)))
                       (window-sash-height variant values))
                    (item-words 5124 "%1: the window is too low for its sashes and bars."
                                (list (item-label 2))))))

; AT is the left end of the window's width, on the inner face of the wall.
(defun window-draw (variant values at)
  (window-plan variant values at)
  (window-elevation variant values (item-at at 0 (+ (item-of values 4) (item-of values 16) 500)))
  T)

; --- sizes

; What the frame leaves for the sashes.
(defun window-clear-width (values)
  (- (item-of values 1) (* 2 (item-of values 6))))

; A sash's width. Fixed lights have mullions between them, sliding sashes overlap by their own stiles.
(defun window-sash-width (variant values / count)
  (setq count (item-of values 8))
  (/ (+ (window-clear-width values)
        (* (1- count)
           (cond ((= variant "fixed") (- (item-of values 6)))
                 ((= variant "sliding") (item-of values 9))
                 (T 0.0))))
     count))

; From one sash's left edge to the next one's.
(defun window-step (variant values)
  (+ (window-sash-width variant values)
     (cond ((= variant "fixed") (item-of values 6))
           ((= variant "sliding") (- (item-of values 9)))
           (T 0.0))))

; How high the rectangular part is, without the arch on it.
(defun window-spring (variant values)
  (- (item-of values 2) (if (= variant "arched") (item-of values 20) 0.0)))

(defun window-sash-height (variant values)
  (- (window-spring variant values) (* 2 (item-of values 6))))

; 1 for a sash that hangs at its left edge, -1 for one that hangs at its right: those of the right half.
(defun window-way (values index)
  (if (and (> (item-of values 8) 1) (>= (* 2 index) (item-of values 8))) -1.0 1.0))

; --- plan: x along the wall, y from its inner face to the outer one

(defun window-plan (variant values origin / width wall face inner edge x index)
  (setq width (item-of values 1)
        wall  (item-of values 4)
        face  (- wall (item-of values 5))
        inner (- face (item-of values 7))
        edge  (item-of values 6)
        x     edge
        index 0)
  (item-box origin (- window-wall) 0 0 wall)
  (item-box origin width 0 (+ width window-wall) wall)
  (item-box origin 0 inner edge face)
  (item-box origin (- width edge) inner width face)
  (if (> (item-of values 16) 0)
      (item-box origin (- (item-of values 16)) wall
                (+ width (item-of values 16)) (+ wall (item-of values 16))))
  (repeat (item-of values 8)
    (window-plan-sash variant values origin x index face)
    (setq x     (+ x (window-step variant values))
          index (1+ index)))
  (item-dimension-y origin 0.0 wall (+ width window-wall 120) window-text))

; One sash as its variant stands: turned into the room, on its track, tilted, or glass in the frame.
(defun window-plan-sash (variant values origin x index face / sash depth way turn hinge inner)
  (setq sash  (window-sash-width variant values)
        depth (item-of values 10)
        inner (- face depth))
  (cond
    ((= variant "fixed")
     (window-plan-glass values origin x (+ x sash) (- face (* 0.5 (item-of values 7))))
     (if (> index 0)
         (item-box origin (- x (item-of values 6)) (- face (item-of values 7)) x face)))
    ((= variant "sliding")
     (setq depth (* 0.5 (item-of values 7))
           inner (- face (* depth (1+ (rem index 2)))))
     (window-plan-profile values origin x inner 1.0 0.0 sash depth)
     (item-arrow origin (+ x (* 0.3 sash)) (- (- face (item-of values 7)) 40)
                 (+ x (* 0.7 sash)) (- (- face (item-of values 7)) 40) 40))
    ((= variant "tilt")
     (window-plan-profile values origin x inner 1.0 0.0 sash depth)
     ; The upper edge of the tilted sash, as seen from above.
     (if (> (item-of values 14) 0)
         (item-box origin x inner (+ x sash)
                   (- inner (* (window-sash-height variant values)
                               (sin (item-radians (item-of values 14))))))))
    (T
     (setq way   (window-way values index)
           turn  (item-radians (item-of values 14))
           hinge (if (> way 0) x (+ x sash)))
     (window-plan-profile values origin hinge inner way (- turn) sash depth)
     (if (> turn 0)
         (item-arc origin hinge inner sash
                   (if (> way 0) (- (* 2 item-pi) turn) item-pi)
                   (if (> way 0) (* 2 item-pi) (+ item-pi turn)))))))

; A sash in section: a stile at each end, the glass between them.
(defun window-plan-profile (values origin x y way turn sash depth / stile glass)
  (setq stile (item-of values 9)
        glass (* 0.5 (min depth (item-of values 15))))
  (item-turned-box origin x y way turn 0.0 0.0 stile depth)
  (item-turned-box origin x y way turn (- sash stile) 0.0 sash depth)
  (item-turned-box origin x y way turn
                   stile (- (* 0.5 depth) glass) (- sash stile) (+ (* 0.5 depth) glass)))

; Glass that the frame itself holds, with its middle at Y.
(defun window-plan-glass (values origin x1 x2 y / half)
  (setq half (* 0.5 (min (item-of values 7) (item-of values 15))))
  (item-box origin x1 (- y half) x2 (+ y half)))

; --- elevation from inside: x as in plan, y from the floor up

(defun window-elevation (variant values origin / width sill spring edge x index)
  (setq width  (item-of values 1)
        sill   (item-of values 3)
        spring (+ sill (window-spring variant values))
        edge   (item-of values 6)
        x      edge
        index  0)
  (item-line origin (- window-wall) 0 (+ width window-wall) 0)
  (if (> (item-of values 17) 0)
      (item-box origin (- (item-of values 16)) (- sill (item-of values 17))
                (+ width (item-of values 16)) sill))
  (item-box origin 0 sill width spring)
  (if (= variant "arched")
      (window-arch values origin spring))
  (repeat (item-of values 8)
    (window-sash variant values origin x (+ sill edge) index)
    (setq x     (+ x (window-step variant values))
          index (1+ index)))
  (item-dimension-x origin 0 width (- sill 200) window-text)
  (item-dimension-y origin 0 sill -180 window-text)
  (item-dimension-y origin sill (+ sill (item-of values 2)) -180 window-text)
  (item-text origin 0 (- sill 320) window-text
             (strcat "U " (rtos (item-of values 19) 2 2) " W/m2K")))

; The light above the springing: an arc over the whole width, and the frame's inner edge at its distance.
(defun window-arch (values origin spring / rise half radius drop inner)
  (setq rise   (item-of values 20)
        half   (* 0.5 (item-of values 1))
        radius (/ (+ (* half half) (* rise rise)) (* 2 rise))
        drop   (- radius rise)
        inner  (- radius (item-of values 6)))
  (item-arc origin half (- spring drop) radius (atan drop half) (- item-pi (atan drop half)))
  (setq half (sqrt (- (* inner inner) (* drop drop))))
  (item-arc origin (* 0.5 (item-of values 1)) (- spring drop) inner
            (atan drop half) (- item-pi (atan drop half)))
  (item-line origin (- (* 0.5 (item-of values 1)) half) spring (+ (* 0.5 (item-of values 1)) half) spring))

; A sash with its glass, bars, handle and the lines that show how it opens: they meet at the hinges' side.
(defun window-sash (variant values origin x y index / sash high stile way)
  (setq sash  (window-sash-width variant values)
        high  (window-sash-height variant values)
        stile (if (= variant "fixed") 0.0 (item-of values 9))
        way   (window-way values index))
  (item-box origin x y (+ x sash) (+ y high))
  (if (> stile 0)
      (item-box origin (+ x stile) (+ y stile) (- (+ x sash) stile) (- (+ y high) stile)))
  (window-bars values origin (+ x stile) (+ y stile) (- sash stile stile) (- high stile stile))
  (cond
    ((= variant "fixed"))
    ((= variant "sliding")
     (window-handle values origin (+ x (* 0.5 stile)) y)
     (item-arrow origin (+ x (* 0.3 sash)) (+ y (* 0.5 high)) (+ x (* 0.7 sash)) (+ y (* 0.5 high)) 60))
    ((= variant "tilt")
     (window-handle values origin (- (+ x sash) (* 0.5 stile)) y)
     (window-opening origin x (+ y high) (+ x sash) (+ y high) (+ x (* 0.5 sash)) y))
    ((> way 0)
     (window-handle values origin (- (+ x sash) (* 0.5 stile)) y)
     (window-opening origin (+ x sash) y (+ x sash) (+ y high) x (+ y (* 0.5 high))))
    (T
     (window-handle values origin (+ x (* 0.5 stile)) y)
     (window-opening origin x y x (+ y high) (+ x sash) (+ y (* 0.5 high))))))

(defun window-opening (origin x1 y1 x2 y2 hinge-x hinge-y)
  (item-path origin (list (list x1 y1) (list hinge-x hinge-y) (list x2 y2)) nil))

; The handle stands so far above the sash's lower edge.
(defun window-handle (values origin x y)
  (setq y (+ y (item-of values 18)))
  (item-circle origin x y 14)
  (item-box origin (- x 8) (- y 110) (+ x 8) y))

; Glazing bars, evenly over the glass: each is its two edges.
(defun window-bars (values origin x y width high / bar)
  (setq bar (item-of values 13))
  (foreach at (window-spread (item-of values 12) width bar)
    (item-line origin (+ x at) y (+ x at) (+ y high))
    (item-line origin (+ x at bar) y (+ x at bar) (+ y high)))
  (foreach at (window-spread (item-of values 11) high bar)
    (item-line origin x (+ y at) (+ x width) (+ y at))
    (item-line origin x (+ y at bar) (+ x width) (+ y at bar))))

; Where COUNT bars begin that divide EXTENT into equal panes.
(defun window-spread (count extent bar / pane at starts)
  (setq pane (/ (- extent (* count bar)) (1+ count))
        at   0.0)
  (repeat count
    (setq at     (+ at pane)
          starts (cons at starts)
          at     (+ at bar)))
  (reverse starts))
