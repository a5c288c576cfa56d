#!/usr/bin/env bash
# Installs the Debian packages that Velk is built, tested and run with, and only those that are
# missing: when all are there it needs no network, no rights, and no more than a moment.
#
#   scripts/install_dependencies.sh          for ./run and ./test
#   scripts/install_dependencies.sh --all    also what ./test --all uses
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config # the build
    qt6-base-dev qt6-wayland         # the window
    libqt6svg6                       # its icons
    libudev-dev                      # notices a phone that is plugged in
    libplist-dev                     # contacts as a property list
    adb                              # talks to the phone
    libgtest-dev libgmock-dev        # the tests
    libumockdev-dev umockdev         # a USB bus for them and for the demo phone
    # Names on a phone come in every script; a bare system cannot draw any.
    fonts-dejavu-core fonts-noto-core fonts-wqy-microhei fonts-noto-color-emoji
)
case "${1:-}" in
    '') ;;
    --all)
        packages+=(
            clang clang-format-14 clang-tidy-14
            dpkg-dev file librsvg2-bin gzip               # make the package
            lintian desktop-file-utils appstream man-db   # judge it
            debootstrap udev                              # try it
        )
        ;;
    *) echo "usage: $0 [--all]" >&2 && exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    cat >&2 <<'NEEDED'
This is not a Debian system, so nothing is installed for you. Velk needs:
  a C++20 compiler (g++ 12 or clang 14, or newer), CMake 3.25 or newer, Ninja, pkg-config,
  Qt 6.4 or newer with Widgets, Network, Xml, Test and its SVG plugin, libudev, libplist 2, GoogleTest
  with GoogleMock, umockdev, adb, and fonts for the scripts that names on a phone come in.
Going on with what is there.
NEEDED
    exit 0
fi

is_installed() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

missing=()
for package in "${packages[@]}"; do
    is_installed "$package" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=(env)
elif command -v sudo >/dev/null; then
    as_root=(sudo env)
else
    cat >&2 <<MISSING
Velk needs packages that are not installed, and neither are you root nor is there sudo.
Ask somebody who administers this computer to run:
  apt-get install --no-install-recommends ${missing[*]}
MISSING
    exit 1
fi

echo "Installing: ${missing[*]}"
apt() { "${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@"; }
apt update
apt install --yes --no-install-recommends "${missing[@]}"
