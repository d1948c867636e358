; The routine of the sample door. (door) is the whole road: the user chooses a variant, sets the parameters,
; gives a point, and the door is drawn there at scale 1, in plan and, above it, in elevation.
;
;   (door-preview)                 shows the preview picture: 0 after Enter, nil otherwise
;   (door-draw VARIANT VALUES AT)  draws without asking
;
; The parameters, by number:
;    1 leaf width         2 leaf height             3 wall thickness      4 frame depth
;    5 handle height      6 threshold height        7 number of leaves    8 hinges per leaf
;    9 opening angle     10 glazed share           11 leaf thickness     12 rebate width
;   13 rebate depth      14 architrave width       15 its thickness      16 gap under the leaf
;   17 side clearance    18 first hinge from edge  19 lock height        20 lock backset
;   21 stile width       22 bottom rail height     23 panes in a row     24 glass thickness
;   25 transmittance     26 sound insulation       27 fire resistance

(load "item.lsp")

(setq door-variants '("single" "double" "sliding" "arched" "glazed" "bifold")
      door-jamb     45.0    ; the jamb's width seen from the front
      door-wall     300.0   ; how much of the wall is drawn on each side
      door-text     60.0)   ; height of texts

(defun door (/ *error* variant values at)
  (setq *error* item-error)
  (and (setq variant (item-choose "door" door-variants))
       (setq values (item-edit "door" (door-presets variant)
                               '(lambda (values) (door-check variant values))))
       (setq at (item-place "door" '(lambda (at) (door-draw variant values at))))
       (door-draw variant values at)
       (item-show)))

(defun door-preview ()
  (tavrinprevmask "door_preview"))

; A variant has its own number of leaves, whatever the last door had. The user may change it.
(defun door-presets (variant)
  (list (cons 7 (cond ((= variant "double") "2")
                      ((= variant "bifold") "4")
                      (T "1")))))

; Whether the values make a door that can be drawn.
(defun door-check (variant values)
  (and (item-complete values 27)
       (item-positive values '(1 2 3 4 7 11 21 23 24))
       (item-between values 9 0 180)
       (item-between values 10 0 1)
       (item-between values 8 0 12)
       (item-between values 23 1 20)
       (item-between values 7 1 (cond ((= variant "arched") 1)
                                      ((= variant "bifold") 8)
                                      ((= variant "sliding") 4)
                                      (T 2)))
       (item-demand (or (/= variant "bifold") (= (rem (item-of values 7) 2) 0))
                    (item-words 5111 "A folding door has an even number of leaves." nil))
       (item-demand (< (* 2 (item-of values 21)) (item-of values 1))
                    (item-words 5112 "%1: the stiles are wider than the leaf."
                                (list (item-label 21))))
       (item-demand (< (+ (item-of values 21) (item-of values 22)) (item-of values 2))
                    (item-words 5113 "%1: the rails are higher than the leaf."
                                (list (item-label 22))))
       (item-demand (or (/= variant "arched") (< (item-of values 1) (* 2 (item-of values 2))))
                    (item-words 5114 "%1: the leaf is too low for its arch."
                                (list (item-label 2))))))

; The width between the rebates: the leaves and the clearances between them.
(defun door-width (values / leaves)
  (setq leaves (item-of values 7))
  (+ (* leaves (item-of values 1)) (* (1- leaves) (item-of values 17))))

; AT is where the first leaf's lower left corner stands, on the inner face of the wall.
(defun door-draw (variant values at)
  (door-plan variant values at)
  (door-elevation variant values
                  (item-at at 0 (+ (item-of values 3) (item-of values 1) 600)))
  T)

; --- plan: x along the wall, y from its inner face to the face where the leaves open

(defun door-plan (variant values origin / width wall)
  (setq width (door-width values)
        wall  (item-of values 3))
  (door-plan-side values origin 0.0 -1.0)
  (door-plan-side values origin width 1.0)
  (cond ((= variant "sliding") (door-plan-sliding values origin))
        ((= variant "bifold") (door-plan-folding values origin))
        (T (door-plan-hinged values origin)))
  (item-dimension-y origin 0.0 wall (+ width door-jamb door-wall 150) door-text))

; What stands beside the leaves: wall, jamb with its rebate, architraves. X is the leaves' edge, WAY leads
; from there into the wall.
(defun door-plan-side (values origin x way / wall frame rebate-width rebate-depth architrave thick)
  (setq wall         (item-of values 3)
        frame        (item-of values 4)
        rebate-width (item-of values 12)
        rebate-depth (item-of values 13)
        architrave   (item-of values 14)
        thick        (item-of values 15)
        x            (+ x (* way (item-of values 17))))
  (item-path origin
             (list (list (+ x (* way door-jamb)) wall)
                   (list x wall)
                   (list x (- wall rebate-depth))
                   (list (- x (* way rebate-width)) (- wall rebate-depth))
                   (list (- x (* way rebate-width)) (- wall frame))
                   (list (+ x (* way door-jamb)) (- wall frame)))
             T)
  (item-box origin (+ x (* way door-jamb)) 0 (+ x (* way (+ door-jamb door-wall))) wall)
  (if (and (> architrave 0) (> thick 0))
      (progn
        (item-box origin x wall (+ x (* way architrave)) (+ wall thick))
        (item-box origin x (- thick) (+ x (* way architrave)) 0))))

; One or two leaves that turn about the outer corners, with the arcs of their free edges.
(defun door-plan-hinged (values origin / wall leaf turn)
  (setq wall (item-of values 3)
        leaf (item-of values 1)
        turn (item-radians (item-of values 9)))
  (door-plan-leaf values origin 0.0 wall (- (item-of values 13)) 1.0 turn)
  (if (> turn 0)
      (item-arc origin 0.0 wall leaf 0.0 turn))
  (if (= (item-of values 7) 2)
      (progn
        (door-plan-leaf values origin (door-width values) wall (- (item-of values 13)) -1.0 turn)
        (if (> turn 0)
            (item-arc origin (door-width values) wall leaf (- item-pi turn) item-pi)))))

; Leaves in front of the wall, each on a track of its own, with the way they slide.
(defun door-plan-sliding (values origin / leaf clearance thick x y)
  (setq leaf      (item-of values 1)
        clearance (item-of values 17)
        thick     (item-of values 11)
        x         0.0
        y         (+ (item-of values 3) (item-of values 15) 10))
  (repeat (item-of values 7)
    (door-plan-leaf values origin x y 0.0 1.0 0.0)
    (item-arrow origin (+ x (* 0.5 leaf)) (+ y thick 40) (- x (* 0.5 leaf)) (+ y thick 40) 60)
    (setq x (+ x leaf clearance)
          y (+ y thick 10))))

; Pairs of leaves that fold in zigzag: the first half from the left, the rest from the right.
(defun door-plan-folding (values origin / pairs)
  (setq pairs (/ (item-of values 7) 2))
  (door-plan-zigzag values origin 0.0 1.0 (- pairs (/ pairs 2)))
  (door-plan-zigzag values origin (door-width values) -1.0 (/ pairs 2)))

(defun door-plan-zigzag (values origin x way pairs / leaf wall turn reach)
  (setq leaf  (item-of values 1)
        wall  (item-of values 3)
        turn  (item-radians (min 89.0 (item-of values 9)))
        reach (* way leaf (cos turn)))
  (if (and (> pairs 0) (> turn 0))
      (item-arc origin x wall leaf
                (if (> way 0) 0.0 (- item-pi turn))
                (if (> way 0) turn item-pi)))
  (repeat pairs
    (door-plan-leaf values origin x wall 0.0 way turn)
    (door-plan-leaf values origin (+ x reach) (+ wall (* leaf (sin turn))) 0.0 way (- turn))
    (setq x (+ x reach reach))))

; A leaf from the point (X, Y) on, turned by TURN: WAY 1 leads to the right and opens counter-clockwise, -1 is
; its mirror image. Its inner face lies ACROSS beside the line from the point. Glass shows between the stiles.
(defun door-plan-leaf (values origin x y across way turn / leaf thick stile half)
  (setq leaf  (item-of values 1)
        thick (item-of values 11)
        stile (item-of values 21)
        half  (* 0.5 (min thick (item-of values 24))))
  (item-turned-box origin x y way turn 0.0 across leaf (+ across thick))
  (if (> (item-of values 10) 0)
      (item-turned-box origin x y way turn
                       stile (+ across (- (* 0.5 thick) half))
                       (- leaf stile) (+ across (* 0.5 thick) half))))

; --- elevation: x as in plan, y from the floor up

(defun door-elevation (variant values origin / width low high leaf x way)
  (setq width (door-width values)
        leaf  (item-of values 1)
        low   (+ (item-of values 6) (item-of values 16))
        high  (+ low (item-of values 2))
        x     0.0)
  (item-line origin (- (+ door-jamb door-wall)) 0 (+ width door-jamb door-wall) 0)
  (if (> (item-of values 6) 0)
      (item-box origin 0 0 width (item-of values 6)))
  (door-surround variant values origin width high)
  (repeat (item-of values 7)
    (setq way (door-leaf-way variant values x))
    (if (= variant "arched")
        (door-arched-leaf values origin low high)
        (door-leaf variant values origin x low high))
    (if (/= variant "sliding")
        (door-hinges values origin (if (> way 0) x (+ x leaf)) low
                     (if (= variant "arched") (- high (* 0.5 leaf)) high)))
    (door-handle values origin (if (> way 0) (+ x leaf) x) (- way))
    (setq x (+ x leaf (item-of values 17))))
  (item-dimension-x origin 0 leaf -200 door-text)
  (item-dimension-y origin low high (- (+ door-jamb door-wall)) door-text)
  (item-text origin 0 -350 door-text
             (strcat "U " (rtos (item-of values 25) 2 2) " W/m2K   Rw " (rtos (item-of values 26) 2 0)
                     " dB   EI " (itoa (item-of values 27)))))

; 1 for a leaf that hangs at its left edge, -1 for one that hangs at its right.
(defun door-leaf-way (variant values x)
  (if (and (or (= variant "bifold") (= (item-of values 7) 2))
           (/= variant "sliding")
           (>= (+ x (* 0.5 (item-of values 1))) (* 0.5 (door-width values))))
      -1.0
      1.0))

; The clear edge of the frame and the outer edge of the architrave, or of the jamb where there is none.
(defun door-surround (variant values origin width high / clear)
  (setq clear (item-of values 17))
  (foreach far (list clear (+ clear (max door-jamb (item-of values 14))))
    (if (= variant "arched")
        (door-arch origin (- far) (+ width far) 0.0 (- high (* 0.5 width)))
        (item-path origin
                   (list (list (- far) 0) (list (- far) (+ high far))
                         (list (+ width far) (+ high far)) (list (+ width far) 0))
                   nil))))

; Two uprights from LOW to SPRING and the half circle on them.
(defun door-arch (origin x1 x2 low spring)
  (item-line origin x1 low x1 spring)
  (item-line origin x2 low x2 spring)
  (item-arc origin (* 0.5 (+ x1 x2)) spring (* 0.5 (- x2 x1)) 0.0 item-pi))

; A leaf of stiles and rails with a glazed field above and a panel below. The glazed share is the glass's part
; of the leaf's height; what it leaves is the panel, which is glass as well in the glazed variant.
(defun door-leaf (variant values origin x low high / stile left right bottom top sill)
  (setq stile  (item-of values 21)
        left   (+ x stile)
        right  (- (+ x (item-of values 1)) stile)
        bottom (+ low (item-of values 22))
        top    (- high stile)
        sill   (max bottom (- top (* (item-of values 10) (item-of values 2)))))
  (item-box origin x low (+ x (item-of values 1)) high)
  (if (< sill top)
      (progn
        (door-glass values origin left right sill top)
        (setq top (- sill stile))))
  (if (> top bottom)
      (if (= variant "glazed")
          (door-glass values origin left right bottom top)
          (door-panel values origin left right bottom top))))

; The arched leaf: its upper edge is a half circle.
(defun door-arched-leaf (values origin low high / leaf stile bottom spring sill)
  (setq leaf   (item-of values 1)
        stile  (item-of values 21)
        bottom (+ low (item-of values 22))
        spring (- high (* 0.5 leaf))
        sill   (max bottom (- high stile (* (item-of values 10) (item-of values 2)))))
  (item-line origin 0 low leaf low)
  (door-arch origin 0 leaf low spring)
  (if (> (item-of values 10) 0)
      (door-arched-glass values origin sill spring))
  (setq sill (- (min sill spring) stile))
  (if (> sill bottom)
      (door-panel values origin stile (- leaf stile) bottom sill)))

; The glass of the arched leaf keeps the stile's distance from the edge. SILL is its lower edge, below or
; above the arch's springing.
(defun door-arched-glass (values origin sill spring / leaf radius middle half x top)
  (setq leaf   (item-of values 1)
        middle (* 0.5 leaf)
        radius (- middle (item-of values 21))
        half   (if (> sill spring) (door-half-chord radius (- sill spring)) radius))
  (if (< sill spring)
      (door-arch origin (- middle radius) (+ middle radius) sill spring)
      (item-arc origin middle spring radius
                (atan (- sill spring) half) (- item-pi (atan (- sill spring) half))))
  (item-line origin (- middle half) sill (+ middle half) sill)
  (setq x (- middle half))
  (repeat (1- (item-of values 23))
    (setq x   (+ x (/ (* 2 half) (item-of values 23)))
          top (+ spring (door-half-chord radius (- x middle))))
    (item-line origin x sill x top)))

; Half the chord of a circle at an offset from its centre.
(defun door-half-chord (radius offset)
  (sqrt (max 0.0 (- (* radius radius) (* offset offset)))))

; A field of panes, as many in a row as the parameter says, about as high as wide.
(defun door-glass (values origin left right bottom top / columns rows pane at)
  (setq columns (item-of values 23)
        pane    (/ (- right left) columns)
        rows    (max 1 (fix (min 50.0 (+ 0.5 (/ (- top bottom) pane))))))
  (item-box origin left bottom right top)
  (setq at left)
  (repeat (1- columns)
    (setq at (+ at pane))
    (item-line origin at bottom at top))
  (setq at bottom)
  (repeat (1- rows)
    (setq at (+ at (/ (- top bottom) rows)))
    (item-line origin left at right at)))

; A raised panel, drawn as a frame in a frame.
(defun door-panel (values origin left right bottom top / inset)
  (setq inset (* 0.3 (item-of values 21)))
  (item-box origin left bottom right top)
  (if (and (< (* 2 inset) (- right left)) (< (* 2 inset) (- top bottom)))
      (item-box origin (+ left inset) (+ bottom inset) (- right inset) (- top inset))))

; Hinges between the ends of a straight edge: the first and the last at their distance from them, the others
; evenly between.
(defun door-hinges (values origin x low high / count first at)
  (setq count (item-of values 8)
        first (item-of values 18)
        at    (- high first))
  (repeat count
    (item-box origin (- x 8) (- at 50) (+ x 8) (+ at 50))
    (if (> count 1)
        (setq at (- at (/ (- high low first first) (1- count)))))))

; The handle and the lock below or above it, inwards from the free edge. Heights are above the floor.
(defun door-handle (values origin edge way / x)
  (setq x (+ edge (* way (item-of values 20))))
  (item-circle origin x (item-of values 5) 22)
  (item-box origin x (- (item-of values 5) 9) (+ x (* way 130)) (+ (item-of values 5) 9))
  (item-circle origin x (item-of values 19) 12))
