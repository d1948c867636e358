; Draws a bookshelf to scale: 900 wide, 2100 high, 5 shelves.

(defun bookshelf (width height shelves thick / y)
  (draw-polyline (list (list 0 0) (list width 0) (list width height) (list 0 height)) T)
  (draw-polyline (list (list thick 0) (list thick (- height thick))
                       (list (- width thick) (- height thick)) (list (- width thick) 0)))
  (setq y 80.0)
  (repeat shelves
    (draw-line (list thick y) (list (- width thick) y))
    (draw-line (list thick (+ y thick)) (list (- width thick) (+ y thick)))
    (setq y (+ y (/ (- height 80.0 thick) shelves)))))

(bookshelf 900.0 2100.0 5 18.0)
(draw-circle '(450 2250) 60)
(draw-arc '(450 2250) 90 0 (* 4 (atan 1)))
(draw-text '(0 -140) 80 0 "900 x 2100")
