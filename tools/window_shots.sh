#!/usr/bin/env bash
# Screenshots of the real window program under Xvfb, for looking at: the main
# window at its natural size and stretched, a tool tip, the About box and its
# library dialog, the settings dialog with a list open, and the language
# question after a change of language. Runs with an empty settings store inside a session bus.
#
#   tools/window_shots.sh BUILD_DIR OUT_DIR
set -euo pipefail
source "$(dirname "$0")/xvfb_scratch.sh"

build=$(cd "${1:?usage: window_shots.sh BUILD_DIR OUT_DIR}" && pwd)
mkdir -p "${2:?usage: window_shots.sh BUILD_DIR OUT_DIR}"
out=$(cd "$2" && pwd)

if [[ "${3:-}" != "--inside" ]]; then
    start_xvfb_with_scratch
    mkdir -p "$scratch/Pictures"
    env -u QT_QPA_PLATFORM DISPLAY="$display" HOME="$scratch" XDG_CONFIG_HOME="$scratch/.config" \
        XDG_RUNTIME_DIR="$scratch/runtime" QT_QPA_PLATFORMTHEME= \
        dbus-run-session -- "$0" "$build" "$out" --inside
    exit
fi

# Inside the session: drive the program.
"$build/lookwright" &
program=$!
trap 'kill $program 2> /dev/null || true' EXIT

# The id of a visible window of the program that isn't among those given. Windows
# are found by process, not by title: xdotool's name search reads the legacy
# WM_NAME property, which Qt's windows here often leave empty.
new_window() {
    local known=" $* " id
    for _ in $(seq 500); do
        for id in $(xdotool search --onlyvisible --pid "$program" 2> /dev/null); do
            [[ "$known" == *" $id "* ]] || { echo "$id"; return; }
        done
        sleep 0.02
    done
    echo "window_shots.sh: no new window appeared" >&2
    return 1
}

window=$(new_window)
sleep 0.5
import -window root -crop 700x300+0+0 "$out/main.png"

# Stretched by 300 pixels: only the folder line should grow.
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool windowsize --sync "$window" $((WIDTH + 300)) "$HEIGHT"
sleep 0.3
import -window root -crop 1000x300+0+0 "$out/main_wide.png"
xdotool windowsize --sync "$window" "$WIDTH" "$HEIGHT"
sleep 0.3

# The convert button's tool tip appears after two seconds, in the active window
# only; with no window manager the focus has to be given by hand.
xdotool windowfocus --sync "$window"
xdotool mousemove --window "$window" $((WIDTH - 55)) $((HEIGHT - 47))
sleep 2.6
import -window root -crop 800x300+0+0 "$out/tooltip.png"

# The About box, over the middle of the window (which stands at the top left).
xdotool windowmove --sync "$window" 400 300
sleep 0.2
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" $((WIDTH - 58)) 23 click 1
about=$(new_window "$window")
sleep 0.5
import -window root -crop 1100x800+100+100 "$out/about.png"

# The link of the About box opens the library dialog.
eval "$(xdotool getwindowgeometry --shell "$about")"
xdotool mousemove --window "$about" $((WIDTH / 2)) $((HEIGHT - 14)) click 1
new_window "$window" "$about" > /dev/null
sleep 0.5
import -window root "$out/libraries.png"

xdotool key Escape
sleep 0.2
xdotool windowfocus --sync "$about"
xdotool key Escape
sleep 0.3

# The settings dialog, and the list of its format row.
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" 23 21 click 1
settings=$(new_window "$window")
xdotool windowmove --sync "$settings" 420 460
sleep 0.5
import -window root -crop 800x400+300+300 "$out/settings.png"
eval "$(xdotool getwindowgeometry --shell "$settings")"
xdotool mousemove --window "$settings" $((WIDTH - 60)) 21 click 1
sleep 0.5
import -window root -crop 800x400+300+300 "$out/settings_list.png"
xdotool key Escape

# Another language, then the dialog closed: the question about a restart.
xdotool mousemove --window "$settings" $((WIDTH - 60)) $((HEIGHT - 21)) click 1
sleep 0.4
xdotool key Down Return
xdotool windowfocus --sync "$settings"
xdotool key Escape
question=$(new_window "$window" "$settings")
xdotool windowmove --sync "$question" 420 460
sleep 0.5
import -window root -crop 800x400+300+300 "$out/language_question.png"
xdotool windowfocus --sync "$question"
xdotool key Return
