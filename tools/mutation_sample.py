#!/usr/bin/env python3
"""A small mutation sample over the core's readers and conversion.

Each mutant is one textual change to one source file of src/convert or src/preset:
an operator, a constant, a coefficient, a comparison, a term order. The tool applies
them one at a time in the working tree, rebuilds only lookwright_core and the test
executables it is asked to run, runs those tests through CTest with a timeout, and
restores the file with git whatever happens. A mutant that a test notices is
killed; one that passes them all survived.

    tools/mutation_sample.py --list
    tools/mutation_sample.py                          # every mutant, the core tests
    tools/mutation_sample.py --exclude tst_golden_documents
    tools/mutation_sample.py --mutants spline-knot,blacks-lift --matrix

With --matrix every test runs against every mutant (instead of stopping at the
first that kills it), so that one run tells what each test alone would catch.
Needs a configured build folder; the working tree's files under src/ must be
committed, since a mutated file is restored with `git checkout`.
"""

import argparse
import os
import re
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))

# (name, file, original, replacement, description). The original must occur exactly
# once in its file, so that a mutant means one thing after edits elsewhere. A
# replacement keeps every variable it touches in use, since the build treats an
# unused one as an error.
MUTANTS = [
    # The spline.
    ("spline-knot", "src/convert/cubic_spline.cpp",
     "if (segments_[j].x > v) {", "if (segments_[j].x >= v) {",
     "segment choice: a knot belongs to the segment on its left"),
    ("spline-nested", "src/convert/cubic_spline.cpp",
     "return s.a + s.b * t + s.c * t * t + s.d * t * t * t;",
     "return s.a + t * (s.b + t * (s.c + t * s.d));",
     "term order: nested form instead of left-to-right terms"),
    ("spline-solve-l", "src/convert/cubic_spline.cpp",
     "l[i] = 2.0 * (xs[i + 1] - xs[i - 1])", "l[i] = 2.1 * (xs[i + 1] - xs[i - 1])",
     "coefficient of the tridiagonal solve's diagonal"),
    ("spline-b-third", "src/convert/cubic_spline.cpp",
     "h[j] * (c[j + 1] + 2.0 * c[j]) / 3.0;", "h[j] * (2.0 * c[j + 1] + c[j]) / 3.0;",
     "b uses the weights of c swapped"),
    ("spline-d-order", "src/convert/cubic_spline.cpp",
     "(c[j + 1] - c[j]) / (3.0 * h[j]);", "(c[j + 1] - c[j]) / 3.0 / h[j];",
     "d divided in two steps (rounding order)"),
    ("spline-tolerance", "src/convert/cubic_spline.cpp",
     "if (xs[i + 1] - xs[i] < cubic_spline::tolerance) {",
     "if (xs[i + 1] - xs[i] <= cubic_spline::tolerance) {",
     "neighbours exactly one level apart refused"),
    # Compensation of channel curves.
    ("comp-end-round-y", "src/convert/curve_compensation.cpp",
     "b > 0.0 ? static_cast<int>(std::round(b)) : 0;", "b > 0.0 ? static_cast<int>(b) : 0;",
     "end point's y truncated instead of rounded"),
    ("comp-end-round-x", "src/convert/curve_compensation.cpp",
     "return QPoint(static_cast<int>(std::round(a)), y);", "return QPoint(static_cast<int>(a), y);",
     "end point's x truncated instead of rounded"),
    ("comp-search-order", "src/convert/curve_compensation.cpp",
     "{0, 1, -1, 2, -2, 3, -3, 4, -4}", "{0, -1, 1, -2, 2, -3, 3, -4, 4}",
     "search below before above"),
    ("comp-edge", "src/convert/curve_compensation.cpp",
     "(x >= 11 && x <= 244)", "(x >= 10 && x <= 244)",
     "a point ten levels from the edge kept"),
    ("comp-end-side", "src/convert/curve_compensation.cpp",
     "match->searched > 127 ?", "match->key > 127 ?",
     "end point's side told by the key after the cut"),
    ("comp-nearest-tie", "src/convert/curve_compensation.cpp",
     "if (distance < nearest_distance) {", "if (distance <= nearest_distance) {",
     "the last of equally near inputs wins"),
    ("comp-inverse-floor", "src/convert/curve_compensation.cpp",
     "std::round(spline.value_at(position));", "std::floor(spline.value_at(position));",
     "inverse keys floored instead of rounded"),
    # Curve operations and the range fold.
    ("ease-divisor", "src/convert/curve_operations.cpp",
     "(1.0f - x / 84.0f)", "(1.0f - x / 85.0f)", "easing fades out at 85"),
    ("ease-limit", "src/convert/curve_operations.cpp",
     "if (point.x() >= 85) {", "if (point.x() > 85) {", "easing also at x 85"),
    ("table-factor", "src/convert/curve_operations.cpp",
     "const float scaled = fraction * 256.0f;", "const float scaled = fraction * 255.0f;",
     "table results scaled by 255"),
    ("table-channels", "src/convert/curve_operations.cpp",
     "red[i] = QPoint(table_level(in[2]), table_level(out[2]));",
     "red[i] = QPoint(table_level(in[0]), table_level(out[2]));",
     "red input read from the blue channel of the entry"),
    ("curve-text-divisor", "src/convert/curve_operations.cpp",
     "const float fraction = float(level) / 255.0f;",
     "const float fraction = float(level) / 256.0f;", "curve text divides by 256"),
    ("fold-half-shift", "src/convert/range_fold.cpp",
     "const int half = m / 2;\n            lower_all(channels, i + 1, half);",
     "const int half = m >> 1;\n            lower_all(channels, i + 1, half);",
     "half of a negative lift floored instead of truncated"),
    ("fold-top", "src/convert/range_fold.cpp",
     "const int m = top - 255;", "const int m = top - 254;", "fold lowers one level too far"),
    # Tone.
    ("blacks-lift", "src/convert/tone_mapping.cpp",
     "((b + 100.0f) / 100.0f) * -full_shadow_level + full_shadow_level",
     "((b + 100.0f) * -full_shadow_level) / 100.0f + full_shadow_level",
     "negative Blacks: the level multiplied before it is divided"),
    ("blacks-points", "src/convert/tone_mapping.cpp",
     "points.y2 += ((b / 100.0f) * (0.435f - 0.4f) + 0.4f) - 0.4f;",
     "points.y2 += ((b * (0.435f - 0.4f)) / 100.0f + 0.4f) - 0.4f;",
     "positive Blacks: y2's increase multiplied before it is divided"),
    ("shadows-recovery", "src/convert/tone_mapping.cpp",
     "six_decimal(s * 0.8f)", "six_decimal(s * 0.75f)", "shadow recovery factor"),
    ("highlights-y4", "src/convert/tone_mapping.cpp",
     "points.y4 = (h / 100.0f) * (0.93f - 0.8f) + 0.8f;",
     "points.y4 = (h / 100.0f) * 0.13f + 0.8f;",
     "highlights: difference of anchors replaced by its rounded literal"),
    ("whites-factor", "src/convert/tone_mapping.cpp",
     ": -(1.0f - 0.8435f);", ": -0.1565f;", "whites: difference of anchors as a literal"),
    ("old-contrast", "src/convert/tone_mapping.cpp",
     '{"Contrast", "Contrast", -100.0f, 100.0f, -50.0f, 40.0f},\n    {"Exposure"',
     '{"Contrast", "Contrast", -100.0f, 100.0f, -40.0f, 40.0f},\n    {"Exposure"',
     "old contrast's lower bound"),
    ("shadow-level", "src/convert/tone_mapping.cpp",
     "full_shadow_level = 0.189092f;", "full_shadow_level = 0.18909f;",
     "full shadow level constant"),
    ("luma-diagonal", "src/convert/tone_mapping.cpp",
     "if (h == 0.0f && s == 0.0f && b == 0.0f) {",
     "if (h == 0.0f && s == 0.0f && (b == 0.0f || true)) {",
     "the diagonal ignores Blacks"),
    ("copy-scaled-order", "src/convert/range_mapping.cpp",
     ": (c / in_max) * out_max;", ": c * (out_max / in_max);",
     "range mapping's positive half in another order"),
    ("map-points-order", "src/convert/map_to_points.cpp",
     "return (hi_y - lo_y) * ((c - lo_x) / (hi_x - lo_x)) + lo_y;",
     "return (hi_y - lo_y) * (c - lo_x) / (hi_x - lo_x) + lo_y;",
     "interpolation: product before quotient"),
    # Colour editor.
    ("editor-record", "src/convert/colour_editor.cpp",
     "255,130,12,0,4.55426025390625", "255,130,13,0,4.55426025390625",
     "one digit of the orange record"),
    ("editor-bounds", "src/convert/colour_editor.cpp",
     "{50.0f, 22.0f}", "{50.0f, 20.0f}", "orange saturation's upper bound"),
    ("editor-vibrance", "src/convert/colour_editor.cpp",
     "two_sided_scale(value, 100.0f, 80.0f, 80.0f)",
     "two_sided_scale(value, 100.0f, 80.0f, 75.0f)", "vibrance's positive bound"),
    ("editor-closing", "src/convert/colour_editor.cpp",
     '"1,1,2,2.36563158035278,', '"1,1,2,2.36563158035279,', "one digit of the closing record"),
    # White balance.
    ("wb-relative", "src/convert/white_balance.cpp",
     "{25, 6957}", "{25, 6958}", "relative temperature table point"),
    ("wb-prophoto", "src/convert/white_balance.cpp",
     "{11000, -40}", "{11000, -39}", "prophoto tint offset at 11000 K"),
    ("wb-tint-scale", "src/convert/white_balance.cpp",
     "return ((v + 150.0f) / 150.0f) * 50.0f - 50.0f;",
     "return ((v + 150.0f) / 150.0f) * 50.0f - 49.0f;", "negative tint offset"),
    # Split toning and monochrome.
    ("toning-pull", "src/convert/toning_multipliers.cpp",
     "* 0.3f * strength;", "* 0.35f * strength;", "toning's largest pull"),
    ("toning-highlight", "src/convert/toning_multipliers.cpp",
     "1.0f - d / 3.0f;", "1.0f - d / 2.0f;", "highlight share of the pull"),
    ("toning-balance", "src/convert/toning_multipliers.cpp",
     "{0, -25}", "{0, -20}", "balance offset at 0"),
    ("bw-light-saturation", "src/convert/split_toning.cpp",
     "highlight_saturation.value * 0.4f", "highlight_saturation.value * 0.5f",
     "monochrome light saturation factor"),
    ("hsl-level", "src/convert/hsl_fixed.cpp",
     "value * 256 / full", "value * 255 / full", "fixed-point level scale"),
    ("hue-mask", "src/convert/hue_correction.cpp",
     "& 0xFFu", "& 0x1FFu", "hue table level keeps nine bits"),
    ("bw-half", "src/convert/monochrome_mix.cpp",
     "cut_to_hundred(b) / 2.0f", "cut_to_hundred(b) / 3.0f", "mixer share of a neighbour"),
    # Detail and effects, the driver.
    ("grain-type", "src/convert/detail_effects.cpp",
     "if (size <= 22.0f) {", "if (size < 22.0f) {", "grain size 22 counts as the next type"),
    ("vignette-shape", "src/convert/detail_effects.cpp",
     "roundness >= 30.0f ?", "roundness > 30.0f ?", "vignette shape at roundness 30"),
    ("dehaze-slope", "src/convert/detail_effects.cpp",
     "const float amount = value * 0.5f;", "const float amount = value * 0.6f;",
     "dehaze's upward slope"),
    ("old-keys", "src/convert/convert_preset.cpp",
     '"FillLights", "HighlightRecovery"', '"FillLight", "HighlightRecovery"',
     "a lone FillLight turns on the old process"),
    ("prophoto-strategy", "src/convert/convert_preset.cpp",
     "return {&luts.identity(), false, false};", "return {&luts.identity(), true, false};",
     "prophoto converts its channel curves"),
    # Readers.
    ("xmp-curve-y", "src/preset/xmp_reader.cpp",
     "second_comma < 0 ? -1 : second_comma - first_comma - 1",
     "second_comma < 0 ? -1 : second_comma - first_comma",
     "a point's y runs into the second comma"),
    ("xmp-alt-first", "src/preset/xmp_reader.cpp",
     'reader.name() == QLatin1String("li") && result.isEmpty()',
     'reader.name() == QLatin1String("li")', "the last alternative name wins"),
    ("lexer-minus-sign", "src/preset/template_lexer.cpp",
     "first.unicode() == minus_sign ||", "(false && first.unicode() == minus_sign) ||",
     "a word beginning with the Unicode minus is never a number"),
    ("lua-exponent", "src/preset/lua_lexer.cpp",
     "if (i == exponent_start) {\n            return false;",
     "if (i < exponent_start) {\n            return false;",
     "a numeral with an empty exponent accepted"),
]

# Test executables of the core. The golden comparison first: it is cheap and
# catches most changes to documents, and without --matrix the first test that kills
# a mutant ends its run. The readers' tests, slow for their large inputs, last.
DEFAULT_TESTS = [
    "tst_golden_documents", "tst_map_to_points", "tst_hue_correction", "tst_preset_checks",
    "tst_white_balance", "tst_tone_mapping", "tst_colour_editor", "tst_detail_effects",
    "tst_split_toning", "tst_curve_operations", "tst_curve_compensation", "tst_curve_stage",
    "tst_lut_3d", "tst_convert_preset", "tst_real_presets", "tst_template_lexer",
    "tst_lua_template_reader", "tst_xml_cost_guard", "tst_xmp_reader", "tst_template_reader",
]

# The readers' tests read presets and never convert them, so a mutant of
# src/convert can't reach them; they run for mutants of src/preset only.
READER_TESTS = {
    "tst_template_lexer", "tst_lua_template_reader", "tst_xml_cost_guard", "tst_xmp_reader",
    "tst_template_reader",
}


def tests_for(mutant, tests):
    if mutant[1].startswith("src/preset/"):
        return tests
    return [t for t in tests if t not in READER_TESTS]


def run(cmd, timeout=None, quiet=True):
    kwargs = {"cwd": ROOT, "timeout": timeout}
    if quiet:
        kwargs.update(stdout=subprocess.PIPE, stderr=subprocess.STDOUT, universal_newlines=True)
    return subprocess.run(cmd, **kwargs)


def build(build_dir, tests):
    """Builds the core and the given test executables, nothing else."""
    cmd = ["nice", "-n", "10", "cmake", "--build", build_dir, "-j", "2", "--target",
           "lookwright_core"] + tests
    result = run(cmd)
    if result.returncode != 0:
        # The compiler's last words, so that a mutant that does not build can be told
        # from a build that broke for another reason.
        print("\n".join(result.stdout.splitlines()[-15:]), file=sys.stderr)
    return result.returncode == 0


def failing_tests(build_dir, tests, timeout, stop_early):
    """The tests (of `tests`) that fail or time out, in the order given. Each test
    is linked just before it runs, so a mutant that an early test kills costs no
    links of the later ones."""
    failed = []
    for test in tests:
        if not build(build_dir, [test]):
            return None
        result = run(["ctest", "--test-dir", build_dir, "-R", "^%s$" % test,
                      "--timeout", str(timeout), "--no-tests=error"])
        if result.returncode != 0:
            failed.append(test)
            if stop_early:
                break
    return failed


def apply_mutant(mutant):
    name, rel, original, replacement, _ = mutant
    path = os.path.join(ROOT, rel)
    with open(path, encoding="utf-8") as f:
        text = f.read()
    count = text.count(original)
    if count != 1:
        raise SystemExit("mutant %s: the original occurs %d times in %s" % (name, count, rel))
    with open(path, "w", encoding="utf-8") as f:
        f.write(text.replace(original, replacement))


def restore(rel):
    run(["git", "checkout", "--", rel])


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--build", default="build", help="configured build folder")
    parser.add_argument("--tests", help="comma-separated test executables to run")
    parser.add_argument("--exclude", default="", help="comma-separated tests to leave out")
    parser.add_argument("--mutants", help="comma-separated mutant names (default: all)")
    parser.add_argument("--timeout", type=int, default=120, help="seconds per test")
    parser.add_argument("--matrix", action="store_true",
                        help="run every test against every mutant and show which kill it")
    parser.add_argument("--list", action="store_true", help="list the mutants and stop")
    args = parser.parse_args()

    if args.list:
        for name, rel, _, _, description in MUTANTS:
            print("%-20s %-36s %s" % (name, rel, description))
        return 0

    chosen = MUTANTS
    if args.mutants:
        wanted = args.mutants.split(",")
        unknown = set(wanted) - {m[0] for m in MUTANTS}
        if unknown:
            raise SystemExit("unknown mutants: " + ", ".join(sorted(unknown)))
        chosen = [m for m in MUTANTS if m[0] in wanted]
    tests = args.tests.split(",") if args.tests else list(DEFAULT_TESTS)
    excluded = set(filter(None, args.exclude.split(",")))
    tests = [t for t in tests if t not in excluded]

    files = sorted({m[1] for m in chosen})
    dirty = run(["git", "status", "--porcelain", "--"] + files).stdout.strip()
    if dirty:
        raise SystemExit("uncommitted changes in mutated files; commit them first:\n" + dirty)

    print("tests: " + ", ".join(tests))
    if not build(args.build, tests):
        raise SystemExit("the unmutated tree does not build")
    baseline = failing_tests(args.build, tests, args.timeout, stop_early=False)
    if baseline is None or baseline:
        raise SystemExit("tests fail without a mutant: " + ", ".join(baseline or ["(build)"]))

    killed = []
    survived = []
    stillborn = []
    kills_by_test = {t: 0 for t in tests}
    sole_killer = {}
    for mutant in chosen:
        name, rel = mutant[0], mutant[1]
        started = time.time()
        try:
            apply_mutant(mutant)
            failed = failing_tests(args.build, tests_for(mutant, tests), args.timeout,
                                   not args.matrix)
            if failed is None:
                stillborn.append(name)
                verdict = "does not build"
            else:
                for t in failed:
                    kills_by_test[t] += 1
                if len(failed) == 1:
                    sole_killer[name] = failed[0]
                if failed:
                    killed.append(name)
                    verdict = "killed by " + ", ".join(failed)
                else:
                    survived.append(name)
                    verdict = "SURVIVED"
        finally:
            restore(rel)
        print("%-20s %-60s (%.0f s)" % (name, verdict, time.time() - started), flush=True)

    # Leaves the build as the tree is, so that the next run starts clean.
    build(args.build, tests)
    counted = len(killed) + len(survived)
    share = 100.0 * len(killed) / counted if counted else 0.0
    print("\nkilled %d of %d (%.0f %%)" % (len(killed), counted, share))
    if survived:
        print("survived: " + ", ".join(survived))
    if stillborn:
        print("not counted, do not build: " + ", ".join(stillborn))
    if args.matrix:
        print("\nkills per test:")
        for t in tests:
            alone = sorted(m for m, k in sole_killer.items() if k == t)
            print("  %-26s %2d%s" % (t, kills_by_test[t],
                                     "  (alone: %s)" % ", ".join(alone) if alone else ""))
    return 0


if __name__ == "__main__":
    sys.exit(main())
