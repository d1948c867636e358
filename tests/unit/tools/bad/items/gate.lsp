; A choice of gates.
(defun gate (names)
  (tavrinselmask "Replace" 0 "gate_flat" "gate_space" "gate_none")
  (tavrinselmask "Replace" 1 "gate_flat"
                 "gate_space")
  (tavrinselmask "Replace" 0 "gate_a" "gate_b" "gate_c" "gate_d" "gate_e" "gate_f" "gate_g")
  (apply 'tavrinselmask names)
  (prompt (res-text 1597))
  (tavrinprevmask "gate_preview"))
