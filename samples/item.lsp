; What the routines of the items share: the dialogs with their files, checks, and shapes. A routine NAME.lsp
; loads this file and then needs nothing but the numbers of its parameters and its own geometry.
;
; Values are a list of pairs of a parameter's number and its value, such as ((1 . 900.0) (7 . 1)): reals for
; distances and real numbers, whole numbers for the type I. (item-of VALUES 7) takes one out.
;
; Every function that asks the user or reads a file gives nil when there is nothing to go on with, so that a
; routine is one (and ...): it ends where the user gives up, before anything is drawn. A file is read or
; written as a whole, so that none is open while a dialog is.

(setq item-pi (* 4.0 (atan 1.0)))

; Shows the user why the routine ends. nil.
(defun item-stop (text)
  (alert text)
  nil)

; A routine's own *error* handler. Escape is not an error; any other error is shown, and a file that is still
; open is closed.
(defun item-error (text)
  (if item-file
      (close item-file))
  (setq item-file nil)
  (if (/= text "cancelled")
      (alert text)))

; --- files

(setq item-file nil)   ; the file that is open just now

; The lines of a text file, nil when it cannot be opened or is empty.
(defun item-read-lines (path / line lines)
  (if (setq item-file (open path "r"))
      (progn
        (while (setq line (read-line item-file))
          (setq lines (cons line lines)))
        (close item-file)
        (setq item-file nil)))
  (reverse lines))

; Makes a text file of lines. nil when it cannot be opened.
(defun item-write-lines (path lines)
  (if (setq item-file (open path "w"))
      (progn
        (foreach line lines
          (write-line line item-file))
        (close item-file)
        (setq item-file nil)
        T)))

; The position of the last double quote in a text, 0 when it has none.
(defun item-last-quote (text / at)
  (setq at (strlen text))
  (while (and (> at 0) (/= (substr text at 1) "\""))
    (setq at (1- at)))
  at)

; Whether a line of a template is a parameter: it begins with $ and holds a label.
(defun item-parameter-p (line)
  (and (= (substr line 1 1) "$") (> (item-last-quote line) 0)))

; The number after the $ or # of a line.
(defun item-number (line)
  (atoi (substr line 2)))

; A parameter line with the value that PRESETS holds for its number; every other line as it is. The type
; letter stands after the last quote, the value after the letter.
(defun item-preset (line presets / preset)
  (if (and (item-parameter-p line)
           (setq preset (assoc (item-number line) presets)))
      (strcat (substr line 1 (1+ (item-last-quote line))) " " (cdr preset))
      line))

; Writes the working file beside the template: its first line is free, the others are the template's, with
; PRESETS, a list such as ((7 . "2")), instead of the values remembered there. The path of both without the
; endings, nil when something is missing.
(defun item-begin (name presets / template lines base)
  (cond
    ((not (setq template (findfile (strcat name ".TXT"))))
     (item-stop (strcat "The template " name ".TXT is in none of the search folders.")))
    ((not (setq lines (item-read-lines template)))
     (item-stop (strcat "The template " template " cannot be read.")))
    (T
     (setq base (substr template 1 (- (strlen template) 4)))
     (if (item-write-lines
           (strcat base "_TMP.TXT")
           (cons (strcat "(working file of " name ".lsp)")
                 (mapcar '(lambda (line) (item-preset line presets)) (cdr lines))))
         base
         (item-stop (strcat "The working file " base "_TMP.TXT cannot be written."))))))

; What the dialog left in the working file: `#1 = 900` for distances and reals, `$7 = 1` for whole numbers, as lists
; such as (1 "#" "900"). Other lines hold none.
(defun item-read-texts (path / sign number texts)
  (foreach line (item-read-lines path)
    (setq sign (substr line 1 1))
    (if (and (or (= sign "#") (= sign "$")) (= (item-last-quote line) 0))
        (setq number (item-number line)
              texts  (cons (list number sign (substr line (+ 5 (strlen (itoa number))))) texts))))
  (reverse texts))

; The values of such texts.
(defun item-values (texts)
  (mapcar '(lambda (text)
             (cons (car text)
                   (if (= (cadr text) "#") (atof (caddr text)) (atoi (caddr text)))))
          texts))

; --- words

; Where PART begins in a text, from 1; 0 when it is not there.
(defun item-find (text part / at)
  (setq at 1)
  (while (and (<= at (strlen text)) (/= (substr text at (strlen part)) part))
    (setq at (1+ at)))
  (if (> at (strlen text)) 0 at))

; A text for the user: number NUMBER of TavrinRes.dll, or OTHERWISE where that has none or the host does not offer
; its texts to LISP. PARTS replace %1, %2 and so on.
(defun item-words (number otherwise parts / text sign at count)
  (if res-text
      (setq text (res-text number)))
  (if (not text)
      (setq text otherwise))
  (setq count 0)
  (foreach part parts
    (setq count (1+ count)
          sign  (strcat "%" (itoa count))
          at    (item-find text sign))
    (if (> at 0)
        (setq text (strcat (substr text 1 (1- at)) part (substr text (+ at (strlen sign)))))))
  text)

; A text of a template with the text that replaces its placeholder, such as <<1501>>; nil when that is not known.
(defun item-resolve (text / open close words)
  (setq open  (item-find text "<<")
        close (item-find text ">>"))
  (if (and (> open 0) (> close open))
      (setq words (if res-text (res-text (atoi (substr text (+ open 2)))))
            text  (if words (strcat (substr text 1 (1- open)) words (substr text (+ close 2))))))
  text)

; The label of a parameter line as the dialog shows it; nil when its text is not known.
(defun item-label-in (line / label)
  (setq label (substr line (1+ (item-find line "\"")))
        label (item-resolve (substr label 1 (1- (item-last-quote label)))))
  (if (and label (> (strlen label) 1) (= (substr label (strlen label)) "%"))
      (substr label 1 (1- (strlen label)))
      label))

(setq item-labels nil)   ; of the item in the dialog, by the parameters' numbers

; What a message calls a parameter: its label.
(defun item-label (number / label)
  (if (setq label (cdr (assoc number item-labels)))
      label
      (item-words 5106 "Parameter %1" (list (itoa number)))))

; The title of a template's second line, where a placeholder stands for the whole line; nil when it is not known.
(defun item-title-in (line / open close)
  (if line
      (progn
        (setq open  (item-find line "<<")
              close (item-find line ">>"))
        (item-resolve (if (and (> open 0) (> close open))
                          (substr line open (- (+ close 2) open))
                          line)))))

(setq item-titles nil)   ; of the item that was in the dialog last, by its name

; What a question calls an item: its title, otherwise its name.
(defun item-title (name / title)
  (setq title (cdr (assoc name item-titles)))
  (if (and title (/= title "")) title name))

; --- dialogs

; Lets the user choose among the variants, which are names such as "single" with a slide door_single_t.png.
; The chosen name. Without a slide a variant does not take part.
(defun item-choose (name variants / answer)
  (setq answer (apply 'tavrinselmask
                      (append (list "Replace" 0)
                              (mapcar '(lambda (variant) (strcat name "_" variant)) variants))))
  (if answer
      (substr (cadr answer) (+ 2 (strlen name)))))

; Lets the user set the parameters, beginning with PRESETS (see item-begin). Rows marked with % are read-only.
; CHECK is a function of the values that says with item-demand what is wrong, and gives nil then: the dialog comes
; back with what was typed, and the template keeps the last values that were right. nil: everything is taken. The
; values after OK, which the template then remembers.
(defun item-edit (name presets check / base good texts values again item-labels)
  (setq again T)
  (while again
    (setq again  nil
          values nil)
    (if (and (setq base (item-begin name presets))
             (setq good (item-read-lines (strcat base ".TXT")))
             (setq item-labels (item-labels-in good))
             (setq item-titles (list (cons name (item-title-in (cadr good)))))
             (tavrinwnd base 1.0 1))
        (setq texts  (item-read-texts (strcat base "_TMP.TXT"))
              values (item-values texts)))
    (if (and values check (not (apply check (list values))))
        (setq values  nil
              presets (mapcar '(lambda (text) (cons (car text) (caddr text))) texts)
              again   (item-restore base good))))
  values)

; The labels of a template's parameters, by their numbers.
(defun item-labels-in (lines / labels)
  (foreach line lines
    (if (item-parameter-p line)
        (setq labels (cons (cons (item-number line) (item-label-in line)) labels))))
  labels)

; Gives a template its lines back.
(defun item-restore (base lines)
  (if (item-write-lines (strcat base ".TXT") lines)
      T
      (item-stop (strcat "The template " base ".TXT cannot be written."))))

; Asks where the item belongs: its point, with two coordinates. nil when the user gives up. DRAW, a function of a
; point, draws the item; where the host can show that, the item follows the mouse. It may be nil.
(defun item-place (name draw / point)
  (if draw-placement
      (draw-placement draw))
  (setq point (getpoint (item-words 5107 "Insertion point of %1: " (list (item-title name)))))
  (if draw-placement
      (draw-placement nil))
  (if point
      (list (float (car point)) (float (cadr point)))))

; Shows the whole drawing, where the host has a function for that. T.
(defun item-show ()
  (if draw-fit
      (draw-fit))
  T)

; --- values

; The value of a parameter.
(defun item-of (values number)
  (cdr (assoc number values)))

; Whether a condition holds that the drawing relies on; when it does not, the user reads why not.
(defun item-demand (condition text)
  (if condition T (item-stop text)))

; Demands that the parameters from 1 to COUNT have values, none negative and none too large to be drawn.
(defun item-complete (values count / number value text)
  (setq number 1)
  (while (and (not text) (<= number count))
    (setq value (item-of values number)
          text  (cond ((not value)
                       (item-words 5101 "The working file lacks a value: %1." (list (item-label number))))
                      ((< value 0)
                       (item-words 5102 "%1 must not be negative." (list (item-label number))))
                      ((> value 1000000)
                       (item-words 5103 "%1 must not be more than 1000000." (list (item-label number)))))
          number (1+ number)))
  (item-demand (not text) text))

; Demands that these parameters are above 0.
(defun item-positive (values numbers / bad)
  (foreach number numbers
    (if (and (not bad) (<= (item-of values number) 0))
        (setq bad number)))
  (item-demand (not bad)
               (if bad (item-words 5104 "%1 must be more than 0." (list (item-label bad))))))

; Demands that a parameter lies between two numbers, which belong to it.
(defun item-between (values number low high)
  (item-demand (and (>= (item-of values number) low) (<= (item-of values number) high))
               (item-words 5105 "%1 must lie between %2 and %3."
                           (list (item-label number) (itoa low) (itoa high)))))

; Degrees, as users type angles, in radians, as the functions take them.
(defun item-radians (degrees)
  (/ (* degrees item-pi) 180.0))

; --- shapes, given by coordinates to the right and up from ORIGIN

(defun item-at (origin x y)
  (list (+ (car origin) x) (+ (cadr origin) y)))

(defun item-line (origin x1 y1 x2 y2)
  (draw-line (item-at origin x1 y1) (item-at origin x2 y2)))

; A polyline through points that are lists (X Y); CLOSED leads back to the first.
(defun item-path (origin points closed)
  (draw-polyline (mapcar '(lambda (point) (item-at origin (car point) (cadr point))) points) closed))

; A rectangle by two opposite corners.
(defun item-box (origin x1 y1 x2 y2)
  (item-path origin (list (list x1 y1) (list x2 y1) (list x2 y2) (list x1 y2)) T))

; A closed polyline through points that are lists (ALONG ACROSS) of a line that leaves (X, Y) at the angle
; TURN. WAY 1 is a line to the right that turns counter-clockwise, -1 its mirror image to the left.
(defun item-turned (origin x y way turn points)
  (item-path origin
             (mapcar '(lambda (point)
                        (list (+ x (* way (- (* (car point) (cos turn)) (* (cadr point) (sin turn)))))
                              (+ y (* (car point) (sin turn)) (* (cadr point) (cos turn)))))
                     points)
             T))

; A rectangle on such a line, by two opposite corners.
(defun item-turned-box (origin x y way turn along1 across1 along2 across2)
  (item-turned origin x y way turn
               (list (list along1 across1) (list along2 across1)
                     (list along2 across2) (list along1 across2))))

(defun item-circle (origin x y radius)
  (draw-circle (item-at origin x y) radius))

; An arc from START to END, in radians, counter-clockwise.
(defun item-arc (origin x y radius start end)
  (draw-arc (item-at origin x y) radius start end))

(defun item-text (origin x y height text)
  (draw-text (item-at origin x y) height 0.0 text))

; An arrow from one point to another.
(defun item-arrow (origin x1 y1 x2 y2 size / way tip)
  (setq tip (item-at origin x2 y2)
        way (angle tip (item-at origin x1 y1)))
  (item-line origin x1 y1 x2 y2)
  (draw-line tip (polar tip (+ way 0.4) size))
  (draw-line tip (polar tip (- way 0.4) size)))

; A dimension to the right, at the height Y: a line with a tick at each end, the length above it in the
; drawing's units. The text may be longer than the line: it stays clear of the ticks, too.
(defun item-dimension-x (origin x1 x2 y height / text tick)
  (setq text (rtos (- x2 x1))
        tick (* 0.5 height))
  (item-line origin (- x1 tick) y (+ x2 tick) y)
  (foreach x (list x1 x2)
    (item-line origin (- x tick) (- y tick) (+ x tick) (+ y tick)))
  (item-text origin
             (- (* 0.5 (+ x1 x2)) (* 0.3 height (strlen text)))
             (+ y tick (* 0.3 height))
             height text))

; A dimension upwards, at X; its text reads from below.
(defun item-dimension-y (origin y1 y2 x height / text tick)
  (setq text (rtos (- y2 y1))
        tick (* 0.5 height))
  (item-line origin x (- y1 tick) x (+ y2 tick))
  (foreach y (list y1 y2)
    (item-line origin (- x tick) (- y tick) (+ x tick) (+ y tick)))
  (draw-text (item-at origin
                      (- x tick (* 0.3 height))
                      (- (* 0.5 (+ y1 y2)) (* 0.3 height (strlen text))))
             height (* 0.5 item-pi) text))
