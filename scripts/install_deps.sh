#!/usr/bin/env bash
# Installs the Debian packages that building the programs needs, for "test" also those of the tests and benchmarks, for
# "screenshots" those of the pictures, and only those that are not there yet.
# usage: scripts/install_deps.sh [build|test|screenshots]
set -euo pipefail

packages=(g++ lld cmake ninja-build pkg-config ccache python3
          libsqlite3-dev libutf8proc-dev libedit-dev libpng-dev libpcre2-dev libturbojpeg0-dev zlib1g-dev libminizip-dev
          libcli11-dev nlohmann-json3-dev libdtl-dev
          qt6-base-dev qt6-svg-dev qt6-wayland librtmidi-dev libfluidsynth-dev timgm6mb-soundfont)
if [ "${1:-build}" = test ]; then
    packages+=(git clang clang-format clang-tidy libclang-rt-14-dev
               libgtest-dev libgmock-dev libbenchmark-dev libtinyxml2-dev libzip-dev qt6-base-private-dev
               libxml2-utils poppler-utils qt6-l10n-tools unzip)
elif [ "${1:-build}" = screenshots ]; then
    packages+=(xvfb xdotool imagemagick fonts-dejavu-core)
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    echo "packages: all there"
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "packages: installing ${missing[*]}"
log=$(mktemp)
if ! { "${as_root[@]}" apt-get update -qq &&
       "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
           apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
rm -f "$log"
