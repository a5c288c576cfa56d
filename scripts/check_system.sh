#!/usr/bin/env bash
# Proves that Velk runs on a system with nothing prepared: in a fresh Debian of that release, an
# ordinary user with sudo has a fresh clone of the newest commit there, ./run tours the demo phone,
# ./test passes, and the package is made, judged, and tried (scripts/check_package.sh).
#
#   scripts/check_system.sh SYSTEM [--all]      SYSTEM is a release's code name: bookworm, trixie
#
# With --all, ./test --all. As root, where this computer may mount and reaches its Debian mirror.
set -euo pipefail

# Whatever is mounted or started in there is gone when it ends.
if [ "${1:-}" != --inside ]; then
    exec unshare --mount --pid --fork --kill-child "$0" --inside "$@"
fi
shift
if [ $# -lt 1 ] || [ $# -gt 2 ] || [ "${2:---all}" != --all ]; then
    sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2
fi
mount -t proc proc /proc
system=$1
scripts=$(realpath "$(dirname "$0")") repository=$(dirname "$scripts")
person=visitor home=/home/visitor

folder=$(mktemp -d)
root=$folder/root
clean_up() {
    if mountpoint --quiet "$root"; then umount --recursive "$root"; fi
    rm -rf --one-file-system "$folder"
}
trap clean_up EXIT

report=()
# step COMMAND...: what took how long is said at the end.
step() {
    local began=$SECONDS
    printf '\n-- %s: %s\n' "$system" "$*"
    "$@" || { echo "check_system: failed on $system: $*" >&2 && exit 1; }
    report+=("$(printf '%-12s %-32s %4d s' "$system" "$*" $((SECONDS - began)))")
}

# as USER HOME COMMAND...: in the clone, with what a login gives and what CI sets.
as() {
    chroot "$root" /usr/bin/setpriv --reuid "$1" --regid "$1" --init-groups \
        /usr/bin/env --ignore-environment --chdir="$home/velk" HOME="$2" USER="$1" LANG=C.UTF-8 \
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        ${VELK_WARNINGS_AS_ERRORS:+VELK_WARNINGS_AS_ERRORS="$VELK_WARNINGS_AS_ERRORS"} "${@:3}"
}

make_system() { "$scripts/clean_debian.sh" "$system" "$root"; }

make_person_with_clone() {
    chroot "$root" apt-get --yes -qq --no-install-recommends install sudo >/dev/null &&
        chroot "$root" useradd --create-home --shell /bin/bash "$person" &&
        echo "$person ALL=(ALL) NOPASSWD: ALL" >"$root/etc/sudoers.d/$person" &&
        git clone --quiet --no-hardlinks "$repository" "$root$home/velk" &&
        chroot "$root" chown -R "$person:$person" "$home"
}

run() {
    as "$person" "$home" ./run | tee "$folder/tour" &&
        grep -Eq '^Contacts: [1-9]' "$folder/tour"
}

tests() { as "$person" "$home" ./test "$@"; }

package() {
    as root /root scripts/check_package.sh
}

step make_system
step make_person_with_clone
step run
step tests "${@:2}"
step package
printf '\n'
printf '%s\n' "${report[@]}"
