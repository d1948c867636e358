; Reads a template and writes a list of its parameter lines.

(setq from  (open (findfile "shelf.TXT") "r")
      to    (open "list.txt" "w")
      count 0)
(while (setq line (read-line from))
  (if (= (substr line 1 1) "$")
      (progn
        (setq count (1+ count))
        (write-line line to))))
(close from)
(close to)

(princ (strcat (itoa count) " parameters, the last: "))
(setq from (open "list.txt" "r"))
(while (setq line (read-line from))
  (setq last-line line))
(close from)
(princ last-line)
(terpri)
