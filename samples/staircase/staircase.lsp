; The routine of the sample staircase. (staircase) is the whole road: the user chooses a variant, sets the
; parameters, gives a point, and the staircase is drawn there at scale 1, in plan and, above it, in section.
;
;   (staircase-preview)                 shows the preview picture: 0 after Enter, nil otherwise
;   (staircase-draw VARIANT VALUES AT)  draws without asking
;
; The parameters, by number:
;    1 floor height                2 number of risers     3 going                4 flight width
;    5 risers before the landing   6 landing length       7 gap between flights  8 tread thickness
;    9 nosing                     10 slab thickness      11 handrail height     12 handrail diameter
;   13 balusters per step         14 baluster diameter   15 largest rise

(load "item.lsp")

(setq staircase-variants '("straight" "landing" "quarter" "half")
      staircase-floor    600.0   ; how much of the floors is drawn
      staircase-text     90.0)   ; height of texts

(defun staircase (/ *error* variant values at)
  (setq *error* item-error)
  (and (setq variant (item-choose "staircase" staircase-variants))
       (setq values (item-edit "staircase" nil '(lambda (values) (staircase-check variant values))))
       (setq at (item-place "staircase" '(lambda (at) (staircase-draw variant values at))))
       (staircase-draw variant values at)
       (item-show)))

(defun staircase-preview ()
  (tavrinprevmask "staircase_preview"))

; Whether the values make a staircase that can be drawn and built.
(defun staircase-check (variant values)
  (and (item-complete values 15)
       (item-positive values '(1 3 4 6 8 10 11 12 14 15))
       (item-between values 2 2 100)
       (item-between values 13 0 10)
       (item-demand (or (= variant "straight")
                        (and (>= (item-of values 5) 2) (<= (item-of values 5) (- (item-of values 2) 2))))
                    (item-words 5131 "%1: at least two risers belong to each flight."
                                (list (item-label 5))))
       (item-demand (<= (staircase-rise values) (item-of values 15))
                    (item-words 5132
                                "%1: each step would rise %2, more than the largest rise. Take more risers."
                                (list (item-label 2) (rtos (staircase-rise values) 2 1))))))

; AT is the lower left corner of the first flight in plan: x leads up the flight.
(defun staircase-draw (variant values at)
  (staircase-plan variant values at)
  (staircase-section variant values (item-at at 0 (+ (staircase-depth variant values) 800)))
  T)

; --- sizes

(defun staircase-rise (values)
  (/ (item-of values 1) (item-of values 2)))

; Risers of the first flight: all of them where there is no landing.
(defun staircase-first (variant values)
  (if (= variant "straight") (item-of values 2) (item-of values 5)))

(defun staircase-second (variant values)
  (- (item-of values 2) (staircase-first variant values)))

; How long a flight of so many risers is in plan: its last riser leads to the floor or the landing.
(defun staircase-run (values risers)
  (* (1- risers) (item-of values 3)))

; The landing along the first flight. A quarter turn needs space for the second flight's width.
(defun staircase-landing (variant values)
  (if (= variant "quarter")
      (max (item-of values 6) (item-of values 4))
      (item-of values 6)))

; How far the plan reaches across the first flight.
(defun staircase-depth (variant values)
  (+ (item-of values 4)
     (cond ((= variant "quarter") (staircase-run values (staircase-second variant values)))
           ((= variant "half") (+ (item-of values 7) (item-of values 4)))
           (T 0.0))))

; --- plan: x up the first flight, y across it

(defun staircase-plan (variant values origin / width first second run landing far)
  (setq width   (item-of values 4)
        first   (staircase-first variant values)
        second  (staircase-second variant values)
        run     (staircase-run values first)
        landing (staircase-landing variant values)
        far     (+ run landing))
  (staircase-plan-flight values (item-at origin 0 0) 0.0 first)
  (cond
    ((= variant "straight")
     (staircase-walk origin (list (list 0 (* 0.5 width)) (list run (* 0.5 width)))))
    ((= variant "landing")
     (item-box origin run 0 far width)
     (staircase-plan-flight values (item-at origin far 0) 0.0 second)
     (staircase-walk origin
                     (list (list 0 (* 0.5 width))
                           (list (+ far (staircase-run values second)) (* 0.5 width)))))
    ((= variant "quarter")
     (item-box origin run 0 far width)
     (staircase-plan-flight values (item-at origin far width) (* 0.5 item-pi) second)
     (staircase-walk origin
                     (list (list 0 (* 0.5 width))
                           (list (- far (* 0.5 width)) (* 0.5 width))
                           (list (- far (* 0.5 width)) (+ width (staircase-run values second))))))
    (T
     (item-box origin run 0 far (staircase-depth variant values))
     (staircase-plan-flight values (item-at origin run (staircase-depth variant values)) item-pi second)
     (staircase-walk origin
                     (list (list 0 (* 0.5 width))
                           (list (+ run (* 0.5 landing)) (* 0.5 width))
                           (list (+ run (* 0.5 landing)) (- (staircase-depth variant values) (* 0.5 width)))
                           (list (- run (staircase-run values second))
                                 (- (staircase-depth variant values) (* 0.5 width)))))))
  (item-dimension-y origin 0.0 width (- staircase-floor) staircase-text))

; A flight that leaves CORNER, the right end of its first riser, in the direction WAY: its outline, the
; risers, and the nosings in front of them.
(defun staircase-plan-flight (values corner way risers / width x)
  (setq width (item-of values 4)
        x     0.0)
  ; Local points turn with the flight; to its left lies its width.
  (item-turned-box corner 0.0 0.0 1.0 way 0.0 0.0 (staircase-run values risers) width)
  (repeat risers
    (staircase-across corner way x width)
    (if (> (item-of values 9) 0)
        (staircase-across corner way (- x (item-of values 9)) width))
    (setq x (+ x (item-of values 3)))))

; A line across a flight, so far along it.
(defun staircase-across (corner way along width / start)
  (setq start (polar corner way along))
  (draw-line start (polar start (+ way (* 0.5 item-pi)) width)))

; The line along which one walks up: from a small circle to an arrow.
(defun staircase-walk (origin points / before)
  (item-circle origin (car (car points)) (cadr (car points)) 40)
  (while (cdr points)
    (setq before (car points)
          points (cdr points))
    (if (cdr points)
        (item-line origin (car before) (cadr before) (car (car points)) (cadr (car points)))
        (item-arrow origin (car before) (cadr before) (car (car points)) (cadr (car points)) 120))))

; --- section: x along the first flight, y from the lower floor up. After a quarter turn the second flight is
; shown unrolled, behind the landing; after a half turn it comes back.

(defun staircase-section (variant values origin / first second high run landing way start end)
  (setq first   (staircase-first variant values)
        second  (staircase-second variant values)
        high    (* first (staircase-rise values))
        run     (staircase-run values first)
        landing (staircase-landing variant values)
        way     (if (= variant "half") -1.0 1.0)
        start   (if (= variant "half") run (+ run landing)))
  (item-line origin (- staircase-floor) 0 (+ run landing) 0)
  (staircase-flight values origin 0.0 0.0 1.0 first 0.0)
  (if (= variant "straight")
      (staircase-arrival values origin run 1.0)
      (progn
        (item-box origin run (- high (item-of values 10)) (+ run landing) high)
        (staircase-level-rail values origin run (+ run landing) high)
        (staircase-flight values origin start high way second (item-of values 10))
        (staircase-arrival values origin (+ start (* way (staircase-run values second))) way)))
  (item-dimension-y origin 0.0 (item-of values 1) (- staircase-floor) staircase-text)
  (item-dimension-x origin 0.0 (item-of values 3) (- (* 3 staircase-text)) staircase-text)
  (item-text origin 0 (- (* 6 staircase-text)) staircase-text
             (strcat (itoa (item-of values 2)) " x " (rtos (staircase-rise values)) " / "
                     (rtos (item-of values 3)))))

; The upper floor, behind the last riser.
(defun staircase-arrival (values origin x way)
  (item-box origin x (- (item-of values 1) (item-of values 10))
            (+ x (* way staircase-floor)) (item-of values 1)))

; A flight of steps from (X, Y) up, to the right (WAY 1) or to the left (-1). BELOW is how far the slab it
; leaves reaches down: its soffit begins there.
(defun staircase-flight (values origin x y way risers below / rise going slab at level)
  (setq rise  (staircase-rise values)
        going (item-of values 3)
        at    x
        level y)
  (repeat risers
    (item-line origin at level at (+ level rise))
    (setq level (+ level rise)
          risers (1- risers))
    (if (> risers 0)
        (progn
          (item-box origin (- at (* way (item-of values 9))) (- level (item-of values 8))
                    (+ at (* way going)) level)
          (staircase-balusters values origin at level way)))
    (setq at (+ at (* way going))))
  (setq at (- at (* way going)))
  ; The slab is as thick across the slope as the parameter says.
  (setq slab (/ (* (item-of values 10) (sqrt (+ (* rise rise) (* going going)))) going))
  (item-line origin
             (+ x (* way going (/ (- slab below) rise))) (- y below)
             at (- level rise slab))
  (item-line origin at (- level rise slab) at (- level (item-of values 10)))
  (staircase-sloped-rail values origin x (+ y rise) at level))

; The rods of one step, evenly over its going, from the tread to the handrail.
(defun staircase-balusters (values origin x y way / count going half at foot)
  (setq count (item-of values 13)
        going (item-of values 3)
        half  (* 0.5 (item-of values 14))
        at    (if (> count 0) (/ going (* 2 count))))
  (repeat count
    (item-box origin
              (+ x (* way (- at half))) y
              (+ x (* way (+ at half)))
              (+ y (- (item-of values 11) (item-of values 12)) (/ (* at (staircase-rise values)) going)))
    (setq at (+ at (/ going count)))))

; The handrail above the line through the nosings: its outline.
(defun staircase-sloped-rail (values origin x1 y1 x2 y2 / upper lower)
  (setq upper (item-of values 11)
        lower (- upper (item-of values 12)))
  (item-path origin
             (list (list x1 (+ y1 lower)) (list x2 (+ y2 lower))
                   (list x2 (+ y2 upper)) (list x1 (+ y1 upper)))
             T))

(defun staircase-level-rail (values origin x1 x2 y)
  (item-box origin x1 (+ y (- (item-of values 11) (item-of values 12))) x2 (+ y (item-of values 11))))
