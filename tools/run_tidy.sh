#!/usr/bin/env bash
# clang-tidy with the project's .clang-tidy over every translation unit of src/,
# orn_toolkit/ and tools/ that the build compiles: tools/run_tidy.sh BUILD_DIR [JOBS]
# The files come from BUILD_DIR/compile_commands.json, so new sources are checked
# as soon as they are built; generated ones (moc, rcc, autogen) live in the build
# folder and never match. Any finding fails the run. A third argument narrows the
# run to the files whose path below the project matches it (a Python regex), e.g.
# 'src/convert/' while working there.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(realpath "$1")
jobs=${2:-2}
only=${3:-}

if [[ ! -f "$build/compile_commands.json" ]]; then
    echo "run_tidy: $build/compile_commands.json is missing (configure with CMAKE_EXPORT_COMPILE_COMMANDS=ON)" >&2
    exit 2
fi

mapfile -t files < <(python3 - "$build/compile_commands.json" "$root" "$only" <<'PY'
import json, re, sys
commands, root, only = sys.argv[1], sys.argv[2], re.compile(sys.argv[3])
own = re.compile(re.escape(root) + r"/(src|orn_toolkit|tools)/")
files = {entry["file"] for entry in json.load(open(commands))
         if own.match(entry["file"]) and only.search(entry["file"][len(root) + 1:])}
print("\n".join(sorted(files)))
PY
)
if [[ ${#files[@]} -eq 0 ]]; then
    echo "run_tidy: no translation units of src/, orn_toolkit/ or tools/ in the build" >&2
    exit 2
fi

echo "clang-tidy over ${#files[@]} translation units, $jobs at a time"
# The build may be configured for g++, whose warning flags clang does not all know.
# clang-tidy counts the warnings it suppressed in Qt's headers on every file; only
# findings are worth reading.
set +e
printf '%s\0' "${files[@]}" |
    xargs -0 -n 1 -P "$jobs" clang-tidy -p "$build" --quiet --warnings-as-errors='*' \
        --extra-arg=-Wno-unknown-warning-option 2>&1 |
    grep -v -E '^[0-9]+ warnings? generated\.$'
status=${PIPESTATUS[1]}
set -e
if [[ $status -ne 0 ]]; then
    echo "run_tidy: clang-tidy has findings (fix them, or NOLINT a false positive with the reason)" >&2
    exit 1
fi
echo "clang-tidy: no findings"
