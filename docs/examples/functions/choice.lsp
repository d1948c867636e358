; Offers the variants of the shelf that have a slide.

(defun choose (flat-only)
  (tavrinselmask "Replace" flat-only "shelf_open" "shelf_glass" "shelf_oval"))

(princ (choose 0))    ; a 3D slide counts
(terpri)
(princ (choose 1))    ; flat slides only
(terpri)
