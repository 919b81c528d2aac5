#!/usr/bin/env bash
# Start-up time of the window program: from the moment the process is started until
# its window is mapped, under Xvfb and inside a session bus as on a desktop. Each of
# RUNS starts is a new process with an empty settings store; the median is reported,
# next to the same figure for a bare Qt window (bench/plain_window.cpp) so that the
# number can be read against what Qt itself costs on this machine.
#
#   bench/startup.sh BUILD_DIR [RUNS]
set -euo pipefail
source "$(dirname "$0")/../tools/xvfb_scratch.sh"

# Inner mode, run inside dbus-run-session: start PROGRAM, poll until a visible
# window of that process with the title is there, stop it, and print the wall
# milliseconds and the processor milliseconds the process had used by then (all
# its threads). The second figure barely moves when other work shares the
# machine; the first is what a user waits.
if [[ "${1:-}" == "--once" ]]; then
    program=$2
    start=$EPOCHREALTIME
    "$program" > /dev/null 2>&1 &
    pid=$!
    # xdotool's own --sync looks only every half second; poll every 10 ms instead.
    until xdotool search --onlyvisible --pid "$pid" --name '^Lookwright$' > /dev/null 2>&1; do
        if ! kill -0 "$pid" 2> /dev/null; then
            echo "startup.sh: $program ended without showing its window" >&2
            exit 1
        fi
        sleep 0.01
    done
    end=$EPOCHREALTIME
    cpu_ns=$(cat /proc/"$pid"/task/*/schedstat | awk '{ sum += $1 } END { print sum }')
    kill "$pid"
    wait "$pid" 2> /dev/null || true
    awk -v s="$start" -v e="$end" -v c="$cpu_ns" 'BEGIN { printf "%.0f %.0f\n", (e - s) * 1000, c / 1e6 }'
    exit 0
fi

build=$(cd "${1:?usage: startup.sh BUILD_DIR [RUNS]}" && pwd)
runs=${2:-10}
self=$(cd "$(dirname "$0")" && pwd)/$(basename "$0")

start_xvfb_with_scratch

export DISPLAY="$display" HOME="$scratch" XDG_CONFIG_HOME="$scratch/.config"
export XDG_RUNTIME_DIR="$scratch/runtime" QT_QPA_PLATFORMTHEME=
unset QT_QPA_PLATFORM

median() { sort -n | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

measure() {
    local program=$1 label=$2 wall=() cpu=() w c
    for _ in $(seq "$runs"); do
        read -r w c < <(dbus-run-session -- "$self" --once "$program" 2> /dev/null)
        wall+=("$w")
        cpu+=("$c")
    done
    printf '%-16s wall: median %4s ms (runs: %s)\n' "$label" \
        "$(printf '%s\n' "${wall[@]}" | median)" "${wall[*]}"
    printf '%-16s cpu:  median %4s ms (runs: %s)\n' "" \
        "$(printf '%s\n' "${cpu[@]}" | median)" "${cpu[*]}"
}

echo "load average before: $(cut -d' ' -f1-3 /proc/loadavg)"

measure "$build/bench/plain_window" "bare Qt window"
measure "$build/lookwright" "lookwright"
