; The whole use of tavrinwnd: writes the working file, shows the dialog, reads the values back.

; The lines of a text file.
(defun read-lines (path / file line lines)
  (setq file (open path "r"))
  (while (setq line (read-line file))
    (setq lines (cons line lines)))
  (close file)
  (reverse lines))

(defun write-lines (path lines / file)
  (setq file (open path "w"))
  (foreach line lines
    (write-line line file))
  (close file))

; The position after the first " = " in a line; nil when there is none.
(defun value-position (line / at)
  (setq at 1)
  (while (and (< at (strlen line)) (/= (substr line at 3) " = "))
    (setq at (1+ at)))
  (if (< at (strlen line))
      (+ at 3)))

; #1 = 900 as (1 . 900.0), $3 = 6 as (3 . 6); nil for a line that is no assignment.
(defun assignment (line / sign position)
  (setq sign     (substr line 1 1)
        position (value-position line))
  (cond
    ((not position) nil)
    ((= sign "#") (cons (atoi (substr line 2)) (atof (substr line position))))
    ((= sign "$") (cons (atoi (substr line 2)) (atoi (substr line position))))))

; The values after OK, nil otherwise.
(defun edit-item (name / template base values)
  (setq template (findfile (strcat name ".TXT"))
        base     (substr template 1 (- (strlen template) 4)))
  (write-lines (strcat base "_TMP.TXT") (read-lines template))
  (if (tavrinwnd base 1.0 1)
      (foreach line (read-lines (strcat base "_TMP.TXT"))
        (if (assignment line)
            (setq values (cons (assignment line) values)))))
  (reverse values))

(princ (edit-item "shelf"))
(terpri)
