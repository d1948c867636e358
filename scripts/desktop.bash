# Mouse, keyboard and screenshots on the X display for the scripts that drive a program; waiting with a time
# limit. To be sourced.

# wait_for SECONDS WHAT COMMAND...: repeats the command until it succeeds or the time is up.
wait_for() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        if [ "$SECONDS" -ge "$deadline" ]; then
            echo "timed out waiting for $what" >&2
            return 1
        fi
        sleep 0.05
    done
}

# find_window TITLE: puts the visible window with exactly this title into $window.
find_window() {
    window=$(xdotool search --onlyvisible --name "^$1\$" | head -n 1) && [ -n "$window" ]
}

# find_untitled CLASS: puts the visible window of a program that has no title into $window.
find_untitled() {
    for window in $(xdotool search --onlyvisible --class "$1"); do
        [ -n "$(xdotool getwindowname "$window")" ] || return 0
    done
    return 1
}

is_gone() { ! xwininfo -id "$1" | grep -q IsViewable; }

# look FILE [WINDOW]: a picture of WINDOW ($window when none is named); succeeds when it equals the one before
# and shows more than a few colours (the window may still be painting).
look() {
    import -window "${2:-$window}" -strip -define png:exclude-chunk=date,time "png:$1.new"
    local same=1
    cmp -s "$1" "$1.new" && same=0
    mv "$1.new" "$1"
    [ "$(identify -format '%k' "$1")" -gt 8 ] || same=1
    return "$same"
}

# picture FILE WHAT: waits until $window is painted and keeps the picture.
picture() { wait_for 20 "$2 to be painted" look "$1"; }

# frame_of WINDOW: where its inside stands on the screen, as WIDTHxHEIGHT+X+Y. (xdotool's position counts the
# window manager's frame twice.)
frame_of() {
    xwininfo -id "$1" | awk '/Absolute upper-left X:/ { x = $NF } /Absolute upper-left Y:/ { y = $NF }
        /Width:/ { w = $NF } /Height:/ { h = $NF } END { print w "x" h "+" x "+" y }'
}

# screen_picture FILE WHAT: a screenshot of $window's rectangle, including menus above it.
screen_picture() {
    wait_for 20 "$2 to be painted" look "$1" root
    convert "$1" -crop "$(frame_of "$window")" +repage -strip -define png:exclude-chunk=date,time "png:$1.new"
    mv "$1.new" "$1"
}

# point_at X Y WIDTH HEIGHT: moves the mouse in $window to a point of a dialog that is WIDTH by HEIGHT units.
point_at() {
    local WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    xdotool mousemove --window "$window" $(($1 * WIDTH / $3)) $(($2 * HEIGHT / $4))
}

click_at() { point_at "$@" && xdotool click 1; }
