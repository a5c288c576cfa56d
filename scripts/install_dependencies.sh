#!/usr/bin/env bash
# Installs the Debian packages that Velk is built, tested and run with, and only those that are
# missing: when all are there it needs no network, no rights, and no more than a moment. On another
# system it says what is needed and how it is called there.
#
#   scripts/install_dependencies.sh            for ./run and ./test
#   scripts/install_dependencies.sh --agent    also what the agent for a real phone is built with
#   scripts/install_dependencies.sh --package  also what scripts/check_package.sh uses
#   scripts/install_dependencies.sh --all      also what ./test --all and CI use
set -euo pipefail

# Of names with | between them, the first that the system knows is meant.
packages=(
    g++ cmake ninja-build pkg-config  # the build
    qt6-base-dev qt6-wayland          # the window
    'qt6-svg-plugins|libqt6svg6'      # its icons; the older release has the plugin in the library's package
    libudev-dev                       # notices a phone that is plugged in
    libplist-dev                      # contacts as a property list
    libsimdjson-dev nlohmann-json3-dev  # what goes over the second wire
    adb                               # talks to the phone
    libgtest-dev libgmock-dev         # the tests
    libumockdev-dev umockdev          # a USB bus for them and for the demo phone
    # Names on a phone come in every script; a bare system cannot draw any.
    fonts-dejavu-core fonts-noto-core fonts-wqy-microhei fonts-noto-color-emoji
)
for_agent=(
    default-jdk-headless maven zip unzip # compile it, and fetch what Debian lacks
    aapt zipalign apksigner dexdump      # make its package, sign it, look into it
)
for_package=(
    "${for_agent[@]}"
    dpkg-dev file librsvg2-bin gzip             # make the package
    lintian desktop-file-utils appstream man-db # judge it
    debootstrap udev systemd                    # try it; systemd, or udev itself, acts on its rule
)
for_all=(
    clang clang-format clang-tidy
    git                     # the clone that a clean system gets
    sway wtype wl-clipboard # a Wayland desktop, its keyboard, and a neighbour on it
)
case "${1:-}" in
    '') ;;
    --agent) packages+=("${for_agent[@]}") ;;
    --package) packages+=("${for_package[@]}") ;;
    --all) packages+=("${for_package[@]}" "${for_all[@]}") ;;
    *) sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2 ;;
esac

# The README has the names on other systems, in a table.
if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    cat >&2 <<'NEEDED'
This is not a Debian system, so nothing is installed for you. What Velk needs, and how it is called on
systems that it has not been tried on:

NEEDED
    sed -n '/^| Needed |/,/^$/p' "$(dirname "$0")/../README.md" >&2
    echo 'Going on with what is there.' >&2
    exit 0
fi

is_installed() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# The name of a package on this system.
name_here() {
    local name
    for name in ${1//|/ }; do
        if is_installed "$name" || apt-cache show "$name" >/dev/null 2>&1; then break; fi
    done
    echo "$name"
}

# Sets `missing`. What apt knows may change with an update of its lists.
look_for_missing() {
    missing=()
    local package
    for package in "${packages[@]}"; do
        if [[ $package == *'|'* ]]; then package=$(name_here "$package"); fi
        is_installed "$package" || missing+=("$package")
    done
}

look_for_missing
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

apt() { "${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 "$@"; }
apt update
look_for_missing
echo "Installing: ${missing[*]}"
apt install --yes --no-install-recommends "${missing[@]}"
