#!/usr/bin/env bash
# Installs the Debian packages the build needs, and only those that are missing,
# so that a second call costs one dpkg query.
set -euo pipefail

packages=(
    build-essential cmake pkg-config clang
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev qttranslations5-l10n
    libzip-dev liblcms2-dev fonts-freefont-ttf
    libbenchmark-dev libclang-rt-14-dev
    zip unzip time
    desktop-file-utils appstream dpkg-dev fakeroot
    xvfb xdotool dbus-daemon imagemagick
)

missing=()
for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$p")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
if [[ $(id -u) -eq 0 ]]; then
    sudo=()
else
    sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -q
"${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
