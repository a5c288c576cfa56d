#!/usr/bin/env bash
# Installs Velk's Debian package into a system of its own, has it show the demo phone there as an
# ordinary user, removes it, and compares the system's files with those from before.
#
#   scripts/try_package.sh [--unpacked] PACKAGE BUILD
#
# BUILD is a build folder with the demo phone; the tour's pictures come into it. The system is a fresh
# Debian, for which this has to run as root and in mount and process namespaces of its own. With
# --unpacked, or when no Debian can be fetched, it is an empty folder into which dpkg unpacks the
# package, which needs no rights; the program then uses this computer's libraries and adb.
set -euo pipefail

kind=clean
if [ "${1:-}" = --unpacked ]; then kind=unpacked && shift; fi
[ $# -eq 2 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }
scripts=$(cd "$(dirname "$0")" && pwd)
package=$(realpath "$1") build=$(realpath "$2")
ordinary_user=1000

folder=$(mktemp -d)
root=$folder/root
leave_system() { if mountpoint --quiet "$root"; then umount --recursive "$root"; fi; }
clean_up() {
    leave_system
    rm -rf --one-file-system "$folder"
}
trap clean_up EXIT
stay=tmp/velk-visit # in the system: what the tour needs, and what it leaves

say() { printf -- '-- %s\n' "$*"; }
fail() { echo "try_package: $1" >&2 && exit 1; }
within() { chroot "$root" /usr/bin/env DEBIAN_FRONTEND=noninteractive "$@"; }
tried() { "$@" >"$folder/log" 2>&1 || { tail -n 20 "$folder/log" >&2 && return 1; }; }
quietly() { tried "$@" || fail "failed: $*"; }

make_empty_folder() {
    leave_system
    rm -rf --one-file-system "$root"
    mkdir -p "$root/tmp" "$root"/var/lib/dpkg/{info,updates,triggers}
    touch "$root"/var/lib/dpkg/{status,available}
}

# What the package asks for comes first, so that the files before and after differ by the package only.
install_dependencies() {
    cp "$package" "$root/tmp/velk.deb"
    quietly within apt-get --simulate install /tmp/velk.deb
    local field
    for field in Depends Recommends; do
        quietly within apt-get --yes --no-install-recommends satisfy \
            "$(dpkg-deb --field "$package" "$field")"
    done
    within apt-get clean
}

unpacking_dpkg() {
    # dpkg asks for programs that an ordinary person's search path does not lead to.
    PATH=$PATH:/usr/sbin:/sbin quietly dpkg --root="$root" --force-not-root,depends --no-triggers \
        --log="$folder/dpkg.log" "$@"
}

install_package() {
    if [ "$kind" = clean ]; then
        quietly within apt-get --yes install /tmp/velk.deb
    else
        unpacking_dpkg --install "$package"
    fi
}

remove_package() {
    if [ "$kind" = clean ]; then
        quietly within apt-get --yes purge velk
    else
        unpacking_dpkg --purge velk
    fi
}

# Everything but what the system's own keepers write at all times.
files() {
    (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./var/log -o \
        -path './var/cache/*' -o -path ./var/lib/apt -o -path './var/lib/dpkg/[!i]*' -o \
        -path ./var/lib/dpkg/info/format \) -prune -o -printf '%y %m %U:%G %p %l\n') | sort
}

prepare_visit() {
    mkdir -p "$root/$stay"/{bin,scripts,home,out}
    mkdir -m 700 "$root/$stay/runtime"
    cp "$build/bin/demo_phone" "$root/$stay/bin"
    ln -s ../../../usr/lib/velk/adb "$root/$stay/bin/adb"
    cp "$scripts"/{with_demo_phone,agent_port_is_free}.sh "$root/$stay/scripts"
}

# visit COMMAND...: runs it beside the demo phone. The folders are named as the command sees them.
visit() {
    local stay=/$stay as_user=()
    if [ "$kind" = clean ]; then
        chown -R "$ordinary_user:$ordinary_user" "$root$stay"
        as_user=(chroot --userspec="$ordinary_user:$ordinary_user" --groups= "$root")
    else
        stay=$root$stay
    fi
    "${as_user[@]}" /usr/bin/env --ignore-environment PATH="$PATH" LANG=C.UTF-8 HOME="$stay/home" \
        XDG_RUNTIME_DIR="$stay/runtime" QT_QPA_PLATFORM=offscreen VELK_BIN="$stay/bin" \
        "$stay/scripts/with_demo_phone.sh" "$@"
}

tour() {
    local velk=/usr/bin/velk out=/$stay/out
    if [ "$kind" = unpacked ]; then velk=$root$velk out=$root$out; fi
    visit "$velk" --tour "$out" >"$folder/tour" 2>"$folder/errors" ||
        { cat "$folder/errors" "$folder/tour" && fail 'the tour did not go through'; }
    sed -n '/^Phone: /,/^$/p' "$folder/tour"
    grep -Eq '^Contacts: [1-9]' "$folder/tour" || fail 'the tour found no contacts'
    rm -rf "$build/package-tour"
    cp -r "$root/$stay/out" "$build/package-tour"
}

if [ "$kind" = clean ]; then
    say "A fresh Debian (a minute or two)"
    if ! "$scripts/clean_debian.sh" "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root"; then
        echo 'No clean Debian can be made here; the package is unpacked into a folder instead.'
        kind=unpacked
    fi
fi
if [ "$kind" = clean ]; then install_dependencies; else make_empty_folder; fi
files >"$folder/before"
say "Install ($kind)"
install_package
say "$(diff "$folder/before" <(files) | grep -c '^>') files and folders are new"
say "Tour ($kind)"
prepare_visit
tour
say "$(find "$build/package-tour" -name '*.png' | wc -l) pictures are in $build/package-tour"
say "Remove ($kind)"
remove_package
diff "$folder/before" <(files) || fail 'the files above differ after the removal'
say 'Nothing is left behind.'
