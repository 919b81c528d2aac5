#!/usr/bin/env bash
# Times the converter end to end on generated presets, process start included,
# and reports peak memory:
#   1,000 presets (half braced templates, half XMP) in "separate" format;
#   10,000 presets into one stylepack;
#   1,000 presets converted into a fresh folder against a durable copy of the
#   same files (`cp -r` into a fresh folder, then `sync -f` on it), in PAIRS
#   interleaved pairs (default 9), with the plain `cp -r` beside them;
#   the flushes the converter asks for with 10 and 1,000 presets (needs strace).
# Usage: bench/end_to_end.sh path/to/lookwright-convert
set -euo pipefail

converter=$(realpath "${1:?usage: end_to_end.sh path/to/lookwright-convert}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Writes $2 presets into folder $1, alternating the two formats, each with its
# own values so that no two conversions are alike.
generate() {
    local dir=$1 count=$2 i
    mkdir -p "$dir"
    for ((i = 0; i < count; i++)); do
        local e=$((i % 100)) s=$((i % 40 - 20)) t=$((4000 + i % 3000))
        if ((i % 2 == 0)); then
            printf 's = {\n\ttitle = "Preset %d",\n\tvalue = {\n\t\tsettings = {\n\t\t\tExposure2012 = 0.%02d,\n\t\t\tShadows2012 = %d,\n\t\t\tHighlights2012 = %d,\n\t\t\tTemperature = %d,\n\t\t\tTint = %d,\n\t\t\tSaturationAdjustmentRed = %d,\n\t\t\tSplitToningShadowHue = %d,\n\t\t\tSplitToningShadowSaturation = 20,\n\t\t\tToneCurvePV2012 = {\n\t\t\t\t0,\n\t\t\t\t%d,\n\t\t\t\t128,\n\t\t\t\t%d,\n\t\t\t\t255,\n\t\t\t\t255,\n\t\t\t},\n\t\t},\n\t},\n}\n' \
                "$i" "$e" "$s" "$((-s))" "$t" "$((s / 2))" "$s" "$((i % 360))" "$((e / 4))" "$((120 + s))" \
                >"$dir/preset_$i.lrtemplate"
        else
            printf '<x:xmpmeta xmlns:x="adobe:ns:meta/">\n <rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">\n  <rdf:Description rdf:about="" xmlns:crs="http://ns.adobe.com/camera-raw-settings/1.0/"\n   crs:Exposure2012="+0.%02d" crs:Contrast2012="%d" crs:Clarity2012="%d" crs:Vibrance="%d" crs:Dehaze="%d">\n   <crs:Name><rdf:Alt><rdf:li xml:lang="x-default">Preset %d</rdf:li></rdf:Alt></crs:Name>\n   <crs:ToneCurvePV2012Red><rdf:Seq><rdf:li>0, 0</rdf:li><rdf:li>128, %d</rdf:li><rdf:li>255, 255</rdf:li></rdf:Seq></crs:ToneCurvePV2012Red>\n  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n' \
                "$e" "$s" "$((s / 2))" "$s" "$((e - 50))" "$i" "$((128 + s))" >"$dir/preset_$i.xmp"
        fi
    done
}

report() {
    local label=$1 log=$2
    local wall rss
    wall=$(grep 'Elapsed (wall clock)' "$log" | awk '{print $NF}')
    rss=$(grep 'Maximum resident set size' "$log" | awk '{print $NF}')
    printf '%-40s wall %s  peak memory %d MB\n' "$label" "$wall" "$((rss / 1024))"
}

generate "$work/in1000" 1000
generate "$work/in10000" 10000
# The converter flushes the output's file system, and with it whatever else
# waits to be written: the generated presets are written out first.
sync

for run in 1 2 3; do
    rm -rf "$work/out" && mkdir "$work/out"
    /usr/bin/time -v "$converter" -q -c srgb -o "$work/out" "$work/in1000" 2>"$work/time.log" || true
    report "1,000 presets, separate (run $run)" "$work/time.log"
done
test "$(ls "$work/out" | wc -l)" -eq 1000

/usr/bin/time -v "$converter" -q -c raw -f stylepack -p "$work/pack.costylepack" "$work/in10000" \
    2>"$work/time.log" || true
report "10,000 presets, one stylepack" "$work/time.log"
test -s "$work/pack.costylepack"

# Wall time of a command in seconds, from bash's clock in microseconds.
seconds() {
    local start=$EPOCHREALTIME
    "$@" >/dev/null 2>&1 || true
    awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.4f", b - a }'
}

durable_copy() {
    cp -r "$1" "$2" && sync -f "$2"
}

# The disk is shared and noisy, and a flush also waits for other programs'
# writes: each pair runs the two back to back, and the figure is the median of
# the pairs' ratios.
pairs=${PAIRS:-9}
: >"$work/pairs"
for ((run = 0; run < pairs; run++)); do
    rm -rf "$work/out" "$work/copy" "$work/plain"
    sync
    mkdir "$work/out"
    convert=$(seconds "$converter" -q -c srgb -o "$work/out" "$work/in1000")
    copy=$(seconds durable_copy "$work/in1000" "$work/copy")
    plain=$(seconds cp -r "$work/in1000" "$work/plain")
    echo "$convert $copy $plain" >>"$work/pairs"
done
test "$(ls "$work/out" | wc -l)" -eq 1000
awk '
    { convert[NR] = $1; copy[NR] = $2; plain[NR] = $3; ratio[NR] = $1 / $2 }
    function median(values, n,   sorted, i, j, v) {
        for (i = 1; i <= n; i++) {
            v = values[i]
            for (j = i - 1; j >= 1 && sorted[j] > v; j--) sorted[j + 1] = sorted[j]
            sorted[j + 1] = v
        }
        return n % 2 ? sorted[(n + 1) / 2] : (sorted[n / 2] + sorted[n / 2 + 1]) / 2
    }
    function low(values, n,   i, m) { m = values[1]; for (i = 2; i <= n; i++) if (values[i] < m) m = values[i]; return m }
    function high(values, n,   i, m) { m = values[1]; for (i = 2; i <= n; i++) if (values[i] > m) m = values[i]; return m }
    END {
        printf "1,000 presets converted, %d pairs: median %.3f s (%.3f-%.3f)\n", NR, median(convert, NR), low(convert, NR), high(convert, NR)
        printf "cp -r + sync -f of the same files:  median %.3f s (%.3f-%.3f)\n", median(copy, NR), low(copy, NR), high(copy, NR)
        printf "plain cp -r:                        median %.3f s (%.3f-%.3f)\n", median(plain, NR), low(plain, NR), high(plain, NR)
        printf "ratio converter / durable copy:     median %.2f (%.2f-%.2f), target <= 2\n", median(ratio, NR), low(ratio, NR), high(ratio, NR)
    }' "$work/pairs"

if command -v strace >/dev/null; then
    generate "$work/in10" 10
    for count in 10 1000; do
        rm -rf "$work/out" && mkdir "$work/out"
        strace -f -c -e trace=fsync,fdatasync,syncfs,sync -o "$work/strace" \
            "$converter" -q -o "$work/out" "$work/in$count" || true
        printf 'flushes for %d presets: %s\n' "$count" \
            "$(awk '$NF ~ /^(fsync|fdatasync|syncfs|sync)$/ { printf "%s %s ", $4, $NF }' "$work/strace")"
    done
else
    echo "strace is not installed: flushes not counted"
fi
