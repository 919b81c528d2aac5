#!/usr/bin/env bash
# Installs the build into a scratch root as a package would (prefix /usr, DESTDIR),
# compares what lands there with the expected list, checks the sizes of the icons,
# and runs the two validators a desktop relies on.
#
#   check_install.sh BUILD_DIR
set -euo pipefail

build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

DESTDIR="$root" cmake --install "$build" --prefix /usr > /dev/null

id=example.corvane.Lookwright
sizes=(16 24 32 48 64 128 256)
expected=(
    usr/bin/lookwright
    usr/bin/lookwright-convert
    usr/share/applications/$id.desktop
    usr/share/metainfo/$id.metainfo.xml
    usr/share/icons/hicolor/scalable/apps/$id.svg
)
for size in "${sizes[@]}"; do
    expected+=("usr/share/icons/hicolor/${size}x${size}/apps/$id.png")
done

installed=$(cd "$root" && find . -type f -printf '%P\n' | sort)
wanted=$(printf '%s\n' "${expected[@]}" | sort)
echo "Installed files:"
echo "$installed" | sed 's/^/  /'
if [[ "$installed" != "$wanted" ]]; then
    echo "FAIL: the installed files differ from the expected ones (< installed, > expected):"
    diff <(echo "$installed") <(echo "$wanted") || true
    exit 1
fi

for program in lookwright lookwright-convert; do
    [[ -x "$root/usr/bin/$program" ]] || { echo "FAIL: $program is not executable"; exit 1; }
done

# A PNG's width and height are the two big-endian words at byte 16 of the file.
for size in "${sizes[@]}"; do
    png="$root/usr/share/icons/hicolor/${size}x${size}/apps/$id.png"
    read -r w h < <(od -An -tu1 -j16 -N8 "$png" |
        awk '{ print $1*16777216 + $2*65536 + $3*256 + $4, $5*16777216 + $6*65536 + $7*256 + $8 }')
    if [[ "$w" != "$size" || "$h" != "$size" ]]; then
        echo "FAIL: the ${size}x${size} icon is ${w}x${h}"
        exit 1
    fi
done

desktop-file-validate "$root/usr/share/applications/$id.desktop"
appstreamcli validate --no-net "$root/usr/share/metainfo/$id.metainfo.xml"

# The entry must start what was installed, under the icon that was installed.
grep -qx "Exec=lookwright" "$root/usr/share/applications/$id.desktop"
grep -qx "Icon=$id" "$root/usr/share/applications/$id.desktop"

echo "Install layout, icons and both validators: OK"
