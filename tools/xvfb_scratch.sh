# Sourced by the scripts that drive the real program under Xvfb: starts an X server
# on a display nobody uses and makes an empty home for the program, both gone when
# the script exits. Sets `display` (":N") and `scratch` (the home, with a private
# runtime folder in "$scratch/runtime").
start_xvfb_with_scratch() {
    local n=90
    while [[ -e /tmp/.X11-unix/X$n || -e /tmp/.X$n-lock ]]; do n=$((n + 1)); done
    Xvfb ":$n" -screen 0 1600x1000x24 -nolisten tcp -noreset > /dev/null 2>&1 &
    xvfb_pid=$!
    scratch=$(mktemp -d)
    trap 'kill $xvfb_pid 2> /dev/null || true; rm -rf "$scratch"' EXIT
    for _ in $(seq 100); do
        [[ -e /tmp/.X11-unix/X$n ]] && break
        sleep 0.05
    done
    display=":$n"
    mkdir -m 700 "$scratch/runtime"
}
