(defun hatch () (tavrinselmask "Replace" 0 "hatch_a")
