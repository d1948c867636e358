; Shows the picture until the user closes it.

(princ (if (tavrinprevmask "shelf") "seen" "given up"))
(terpri)
