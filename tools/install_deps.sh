#!/usr/bin/env bash
# Installs the Debian packages the build needs, and only those that are missing,
# and generates the German locale the suite runs under once more, so that a second
# call costs one dpkg query and one locale listing.
set -euo pipefail

packages=(
    build-essential cmake pkg-config clang clang-tidy gcovr locales
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev qttranslations5-l10n
    libzip-dev liblcms2-dev fonts-freefont-ttf
    libbenchmark-dev libclang-rt-14-dev
    zip unzip time
    desktop-file-utils appstream dpkg-dev fakeroot
    xvfb xdotool dbus-daemon imagemagick
)
test_locale=de_DE.UTF-8

if [[ $(id -u) -eq 0 ]]; then
    sudo=()
else
    sudo=(sudo)
fi

missing=()
for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$p")
done
if [[ ${#missing[@]} -gt 0 ]]; then
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    "${sudo[@]}" apt-get update -q
    "${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

# `locale -a` spells the locale in lower case without the dash ("de_DE.utf8").
if ! locale -a 2>/dev/null | grep -qix "${test_locale/UTF-8/utf8}"; then
    echo "Generating locale $test_locale"
    entry="$test_locale UTF-8"
    if grep -q "^# *$entry\$" /etc/locale.gen; then
        "${sudo[@]}" sed -i "s/^# *$entry\$/$entry/" /etc/locale.gen
    elif ! grep -q "^$entry\$" /etc/locale.gen; then
        echo "$entry" | "${sudo[@]}" tee -a /etc/locale.gen >/dev/null
    fi
    "${sudo[@]}" locale-gen --keep-existing
fi
