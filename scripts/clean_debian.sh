#!/usr/bin/env bash
# Makes a fresh, minimal Debian in a folder, from the mirror that this computer's apt uses.
#
#   scripts/clean_debian.sh SYSTEM ROOT      SYSTEM is a release's code name: bookworm, trixie
#
# As root, and in a mount namespace of the caller's. ROOT becomes a mount point, with /proc, /dev/pts
# and /dev/shm mounted below it: `umount --recursive ROOT` comes before its removal. Fails, and says
# why, where no Debian can be made.
set -euo pipefail

[ $# -eq 2 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }
system=$1 root=$2
log=$(mktemp)
trap 'rm -f "$log"' EXIT

tried() { "$@" >"$log" 2>&1 || { tail -n 20 "$log" >&2 && exit 1; }; }
within() { chroot "$root" /usr/bin/env DEBIAN_FRONTEND=noninteractive "$@"; }

# This computer's own sources of Debian packages, as lines for a sources.list.
own_sources() {
    apt-get indextargets --format 'deb $(SITE) $(CODENAME) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian'
}

own_system=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
[ -n "$(own_sources)" ] || tried apt-get update
sources=$(own_sources | awk -v own="$own_system" -v wanted="$system" \
    '$3 ~ "^" own "(-|$)" { sub("^" own, wanted, $3); print }')
mirror=$(awk -v wanted="$system" '$3 == wanted { print $2; exit }' <<<"$sources")
[ -n "$mirror" ] || { echo 'clean_debian: no source of Debian packages is known' >&2 && exit 1; }

mkdir -p "$root"
tried debootstrap --variant=minbase "$system" "$root" "$mirror"
echo "$sources" >"$root/etc/apt/sources.list"
apt-config dump Acquire >"$root/etc/apt/apt.conf.d/as-on-this-computer" # its proxy, above all
echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/short-lived"           # nothing here outlives a crash
# The certificate authorities that were added to this computer: Maven may need them.
mkdir -p "$root/usr/local/share/ca-certificates"
cp -r /usr/local/share/ca-certificates/. "$root/usr/local/share/ca-certificates" 2>/dev/null || true
mount --bind "$root" "$root"
mount -t proc proc "$root/proc"
mount -t devpts devpts "$root/dev/pts"
mount -t tmpfs tmpfs "$root/dev/shm"
tried within apt-get update
tried within apt-get --yes upgrade
