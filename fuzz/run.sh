#!/usr/bin/env bash
# Runs every fuzz target for a while: fuzz/run.sh BUILD_DIR SECONDS
# Corpora grow in BUILD_DIR/corpus/<target>; crashes land in BUILD_DIR/crashes.
set -euo pipefail
build=$(realpath "$1")
seconds=${2:-60}
root=$(cd "$(dirname "$0")/.." && pwd)
shared="$root/../shared/presets/real"

mkdir -p "$build/crashes"
for target in "$build"/fuzz/fuzz_*; do
    [[ -x "$target" ]] || continue
    name=$(basename "$target")
    corpus="$build/corpus/$name"
    mkdir -p "$corpus"
    seeds=("$root/fuzz/seeds/$name")
    case "$name" in
        fuzz_template* | fuzz_lua_template* | fuzz_xmp* | fuzz_convert*)
            seeds+=("$root/tests/data" "$root/examples")
            [[ -d "$shared" ]] && seeds+=("$shared/lrtemplate" "$shared/xmp")
            ;;
    esac
    existing=()
    for s in "${seeds[@]}"; do [[ -d "$s" ]] && existing+=("$s"); done
    echo "== $name for ${seconds}s"
    "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -dict="$root/fuzz/presets.dict" -artifact_prefix="$build/crashes/$name-" \
        -print_final_stats=1 "$corpus" "${existing[@]}" 2>&1 |
        grep -E '^(#[0-9]+[[:space:]]+(DONE|INITED)|stat::number_of_executed_units|==[0-9]+==|SUMMARY|artifact_prefix)' || true
    if ls "$build/crashes/$name-"* >/dev/null 2>&1; then
        echo "$name: crash found, see $build/crashes" >&2
        exit 1
    fi
done
