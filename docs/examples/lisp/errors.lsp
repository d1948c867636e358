; An error ends the whole evaluation. *error* is called first.

(defun *error* (text)
  (princ (strcat "stopped: " text))
  (terpri))

(defun half (length)
  (/ length 2))

(princ (half 900.0))
(terpri)
(princ (half "nine hundred"))
(princ "never printed")
