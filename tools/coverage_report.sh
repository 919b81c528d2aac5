#!/usr/bin/env bash
# Line and branch coverage per source folder from a build made with
# LOOKWRIGHT_COVERAGE=ON after the suite ran in it: tools/coverage_report.sh BUILD_DIR
# Only the program's own code counts (src/, orn_toolkit/); tests, fuzz drivers,
# benchmarks, build-time tools and generated code do not. Branches that only C++
# exception handling makes, and those the compiler proves unreachable, are left
# out: they say nothing about the tests.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(realpath "$1")
summary="$build/coverage.json"

gcovr --root "$root" --object-directory "$build" \
    --filter "$root/src/" --filter "$root/orn_toolkit/" \
    --exclude-throw-branches --exclude-unreachable-branches \
    --json-summary "$summary" "$build"

python3 - "$summary" <<'PY'
import collections, json, os, sys
files = json.load(open(sys.argv[1]))["files"]
folders = collections.OrderedDict()
for f in sorted(files, key=lambda f: f["filename"]):
    folder = os.path.dirname(f["filename"])
    totals = folders.setdefault(folder, [0, 0, 0, 0])
    totals[0] += f["line_covered"]
    totals[1] += f["line_total"]
    totals[2] += f["branch_covered"]
    totals[3] += f["branch_total"]
def percent(covered, total):
    return "%5.1f%%" % (100.0 * covered / total) if total else "    -"
print("%-18s %15s %8s %15s %8s" % ("folder", "lines", "", "branches", ""))
all_totals = [0, 0, 0, 0]
for folder, t in folders.items():
    print("%-18s %7d / %5d %8s %7d / %5d %8s" % (folder, t[0], t[1], percent(t[0], t[1]),
                                                 t[2], t[3], percent(t[2], t[3])))
    all_totals = [a + b for a, b in zip(all_totals, t)]
t = all_totals
print("%-18s %7d / %5d %8s %7d / %5d %8s" % ("all", t[0], t[1], percent(t[0], t[1]),
                                             t[2], t[3], percent(t[2], t[3])))
PY
