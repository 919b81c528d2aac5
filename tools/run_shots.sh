#!/usr/bin/env bash
# Screenshots of a conversion run in the real window program under Xvfb, for
# looking at: the open dialog, the two read failures, the three warnings, the
# stylepack save dialog, and (from run_dialogs_manual, since no run reaches it) the
# conversion failure. Each box's title, which no window manager draws here, goes
# to titles.txt beside the pictures. Runs with its own settings store inside a
# session bus, in English unless a language code is given.
#
#   tools/run_shots.sh BUILD_DIR OUT_DIR [LANG]
set -euo pipefail
source "$(dirname "$0")/xvfb_scratch.sh"

build=$(cd "${1:?usage: run_shots.sh BUILD_DIR OUT_DIR}" && pwd)
mkdir -p "${2:?usage: run_shots.sh BUILD_DIR OUT_DIR}"
out=$(cd "$2" && pwd)
lang=${3:-en}

if [[ -z "${RUN_SHOTS_SCRATCH:-}" ]]; then
    start_xvfb_with_scratch
    mkdir -p "$scratch/Pictures" "$scratch/presets" "$scratch/styles" "$scratch/.config/Corvane"
    env -u QT_QPA_PLATFORM DISPLAY="$display" HOME="$scratch" XDG_CONFIG_HOME="$scratch/.config" \
        XDG_RUNTIME_DIR="$scratch/runtime" QT_QPA_PLATFORMTHEME= RUN_SHOTS_SCRATCH="$scratch" \
        dbus-run-session -- "$0" "$build" "$out" "$lang"
    exit
fi
scratch=$RUN_SHOTS_SCRATCH

# One preset for each box; the stylepack format makes the run end in the save dialog.
xmp() {
    printf '<x:xmpmeta xmlns:x="adobe:ns:meta/">\n <rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">\n  <rdf:Description rdf:about="" xmlns:crs="http://ns.adobe.com/camera-raw-settings/1.0/"\n   crs:Exposure2012="+0.40" %s>\n   <crs:Name><rdf:Alt><rdf:li xml:lang="x-default">%s</rdf:li></rdf:Alt></crs:Name>\n  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n' "$2" "$1"
}
echo "not a preset" > "$scratch/presets/notes.txt"
printf 's = {\n\ttitle = "Broken"\n\tvalue = 1,\n}\n' > "$scratch/presets/Broken.lrtemplate"
xmp "Warm Evening" 'crs:Temperature="6200" crs:Tint="+6"' > "$scratch/presets/Warm Evening.xmp"
xmp "Film Look" 'crs:RGBTable="4C5554"' > "$scratch/presets/Film Look.xmp"
printf 's = {\n\ttitle = "Studio",\n\tvalue = {\n\t\tsettings = {\n\t\t\tRedHue = 12,\n\t\t},\n\t},\n}\n' \
    > "$scratch/presets/Studio.lrtemplate"
printf '[General]\ninput_dir=%s\noutput_dir=%s\nformat=stylepack\nlang=%s\n' \
    "$scratch/presets" "$scratch/styles" "$lang" > "$scratch/.config/Corvane/Lookwright.conf"

"$build/lookwright" > "$out/run.log" 2>&1 &
program=$!
trap 'kill $program 2> /dev/null || true' EXIT

# Sets `found` to a visible window of the program that wasn't found before; with
# a title given, only a window of that title counts. Not called in a subshell, so
# that `known` keeps what was found.
known=""
next_window() {
    local id
    for _ in $(seq 500); do
        for id in $(xdotool search --onlyvisible --pid "$program" 2> /dev/null); do
            [[ " $known " == *" $id "* ]] && continue
            [[ -z "${1:-}" || "$(xdotool getwindowname "$id" 2> /dev/null)" == "$1" ]] || continue
            known="$known $id"
            found=$id
            return
        done
        sleep 0.02
    done
    echo "run_shots.sh: no new window appeared" >&2
    return 1
}

# Captures a window with a margin of the screen around it, and notes its title.
shoot() {
    local id=$1 name=$2
    sleep 0.5
    eval "$(xdotool getwindowgeometry --shell "$id")"
    local x=$((X > 20 ? X - 20 : 0)) y=$((Y > 20 ? Y - 20 : 0))
    import -window root -crop "$((WIDTH + 40))x$((HEIGHT + 40))+$x+$y" "$out/$name.png"
    printf '%s: %s (%dx%d)\n' "$name" "$(xdotool getwindowname "$id")" "$WIDTH" "$HEIGHT" \
        >> "$out/titles.txt"
}

# Answers a box with the keyboard: Return takes its default button.
answer() {
    xdotool windowfocus --sync "$1"
    xdotool key Return
}

: > "$out/titles.txt"
next_window
window=$found
sleep 0.5
xdotool windowmove --sync "$window" 500 300
sleep 0.2
# Clicks the convert button and types the names into the open dialog.
convert() {
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove --window "$window" $((WIDTH - 54)) $((HEIGHT - 47)) click 1
    next_window
    open=$found
    [[ -z "${2:-}" ]] || shoot "$open" "$2"
    xdotool windowfocus --sync "$open"
    xdotool type --delay 5 "$1"
    xdotool key Return
}

# A name the filter hides is lost when typed with others, once the dialog has
# selected those in its list; alone it reaches the run.
convert '"notes.txt"'
next_window
shoot "$found" unsupported_format
answer "$found"

convert '"Broken.lrtemplate" "Warm Evening.xmp" "Film Look.xmp" "Studio.lrtemplate"' open_dialog
for name in read_failed white_balance unsupported_parameters calibration; do
    next_window
    shoot "$found" "$name"
    answer "$found"
done

next_window
save=$found
shoot "$save" save_dialog
xdotool windowfocus --sync "$save"
xdotool type --delay 5 'My Looks.costylepack'
xdotool key Return
for _ in $(seq 200); do
    [[ -s "$scratch/styles/My Looks.costylepack" ]] && break
    sleep 0.05
done
ls -l "$scratch/styles" >> "$out/titles.txt"

# The conversion failure, shown over the real window by the manual program.
kill $program
known=""
"$build/tools/manual/run_dialogs_manual" conversion &
program=$!
next_window "Preset conversion failed"
shoot "$found" conversion_failed
answer "$found"
wait $program
