; The routine of the sample door: shows the item, lets the user choose a variant and its parameters.
; Its files (door.TXT, the pictures) lie in a folder on the host's search path.

; The preview. 0 when the user closed it with Enter, nil otherwise.
(defun door-preview ()
  (tavrinprevmask "door_preview"))

; The choice among the variants: a list of 100 and the variant's name, or nil. With flat-only 1 only the
; variants that have a flat picture (NAME_t.png) take part, with 0 also those that have nothing but a
; drawing in space (NAME_t_3d.png).
(defun door-choose (flat-only)
  (tavrinselmask "Replace" flat-only
                 "door_single" "door_double" "door_sliding"
                 "door_arched" "door_glazed" "door_bifold"))

; Copies the template's lines after the first into the working file, which the item dialog rewrites.
(defun door-write-working-file (/ template working line)
  (setq template (open (findfile "door.TXT") "r")
        working  (open "door_TMP.TXT" "w"))
  (read-line template)
  (write-line "(working file of door.lsp)" working)
  (while (setq line (read-line template))
    (write-line line working))
  (close working)
  (close template))

; The item dialog at scale 1, rows marked with % read-only. 0 after OK: the working file then holds one
; assignment per parameter.
(defun door-edit ()
  (door-write-working-file)
  (tavrinwnd "door" 1.0 1))

; The whole story. The chosen variant's name, or nil when the user gave up on the way.
(defun door (/ choice)
  (if (door-preview)
      (setq choice (door-choose 0)))
  (if (and choice (door-edit))
      (cadr choice)))
