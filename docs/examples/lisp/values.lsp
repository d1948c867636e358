; Values, variables, lists and functions.

(defun say (value)
  (princ value)
  (terpri))

(setq width 900.0
      kinds '((1 . "single") (2 . "double")))

(say (/ 7 2))                    ; whole numbers stay whole
(say (/ 7 2.0))
(say (cdr (assoc 2 kinds)))
(say (mapcar 'car kinds))

(defun area (a b / product)      ; product belongs to the function
  (setq product (* a b))
  product)

(say (area width 2100))
(say product)                    ; not defined here

(defun count-down (from)
  (while (> from 0)
    (princ from)
    (princ " ")
    (setq from (1- from)))
  (terpri))

(count-down 3)
(foreach kind kinds
  (say (strcat (itoa (car kind)) ": " (cdr kind))))
