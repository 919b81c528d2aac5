#!/usr/bin/env bash
# Runs every fuzz target for a while: fuzz/run.sh BUILD_DIR SECONDS
#
# Each target starts from its checked-in corpus (fuzz/corpus/<target>, read only)
# and, for the readers, the test presets, the examples and the shared presets when
# they are there. The run's working corpus grows in BUILD_DIR/corpus/<target>.
# Afterwards, whatever in it reaches code that the checked-in corpus does not is
# merged into BUILD_DIR/found/<target>: those are the inputs worth keeping (see
# README.md). A crash is saved to BUILD_DIR/crashes and fails the run.
set -euo pipefail
build=$(realpath "$1")
seconds=${2:-60}
root=$(cd "$(dirname "$0")/.." && pwd)
shared="$root/../shared"

# The sha1 of every file in a folder, one a line.
hashes_of() {
    find "$1" -type f -exec sha1sum {} + 2>/dev/null | cut -d' ' -f1 | sort -u
}

mkdir -p "$build/crashes"
found_any=0
for target in "$build"/fuzz/fuzz_*; do
    [[ -x "$target" ]] || continue
    name=$(basename "$target")
    corpus="$build/corpus/$name"
    kept="$root/fuzz/corpus/$name"
    found="$build/found/$name"
    mkdir -p "$corpus" "$found"
    seeds=("$kept")
    case "$name" in
        fuzz_template* | fuzz_lua_template* | fuzz_xmp* | fuzz_convert*)
            seeds+=("$root/tests/data" "$root/examples" "$shared/golden/presets/generated"
                    "$shared/presets/real/lrtemplate" "$shared/presets/real/xmp")
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

    # Merge into a copy of the checked-in corpus: what the merge adds to the copy
    # is new coverage, and only that goes to found/.
    merged=$(mktemp -d)
    [[ -d "$kept" ]] && cp "$kept"/. "$merged"/ -r
    before=$(mktemp)
    hashes_of "$merged" >"$before"
    if ! "$target" -merge=1 -timeout=10 -rss_limit_mb=2048 "$merged" "$corpus" >"$build/merge.log" 2>&1; then
        echo "$name: merging the run's corpus failed, see $build/merge.log" >&2
        exit 1
    fi
    added=0
    while IFS= read -r -d '' file; do
        hash=$(sha1sum "$file" | cut -d' ' -f1)
        if ! grep -qx "$hash" "$before"; then
            cp "$file" "$found/$hash"
            added=$((added + 1))
        fi
    done < <(find "$merged" -type f -print0)
    rm -rf "$merged" "$before"
    if [[ $added -gt 0 ]]; then
        echo "$name: $added inputs reach new code; they are in $found"
        found_any=1
    fi
done
if [[ $found_any -eq 1 ]]; then
    echo "To keep an input, copy it into fuzz/corpus/<target>/ under a name that says what it is."
fi
