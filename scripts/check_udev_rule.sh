#!/usr/bin/env bash
# Asks udev what it would do with phones of a maker that nobody has heard of: the one that offers its
# debugging interface, second among its interfaces, goes to who sits at the computer; the one that
# offers only the loading of a system does not.
#
#   scripts/check_udev_rule.sh      as root; it mounts in a namespace of its own
set -euo pipefail

rules=$(realpath "$(dirname "$0")/../packaging/70-velk.rules")
if [ "${1:-}" != --inside ]; then exec unshare --mount "$0" --inside; fi

# udev keeps what it learns, and finds rules, in here.
mount -t tmpfs tmpfs /run
mkdir -p /run/udev/rules.d
cp "$rules" /run/udev/rules.d
: >/run/udev/rules.d/70-uaccess.rules # takes the place of the system's own, which may give some phones away

# interfaces CLASS...: a device's descriptors with these interfaces, each with one endpoint.
interfaces() {
    local class number=0 all='' endpoint=07058102000200
    for class in "$@"; do
        all+=$(printf '0904%02X0001%s00%s' $((number++)) "$class" "$endpoint")
    done
    printf '12010002000000403412785600010102030109022900%02X01008032%s' $# "$all"
}

# udev_says CLASS...: what udev would do with a device that has these interfaces.
udev_says() {
    rm -rf /run/udev/{data,tags} # it remembers the tags of a device that it has met
    umockdev-run --device <(
        cat <<DEVICE
P: /devices/pci0000:00/0000:00:14.0/usb1/1-1
N: bus/usb/001/002
E: DEVNAME=/dev/bus/usb/001/002
E: DEVTYPE=usb_device
E: MAJOR=189
E: MINOR=1
E: SUBSYSTEM=usb
A: bDeviceClass=00
A: idVendor=1234
A: idProduct=5678
H: descriptors=$(interfaces "$@")
DEVICE
    ) -- env SYSTEMD_DEVICE_VERIFY_SYSFS=0 udevadm test \
        /sys/devices/pci0000:00/0000:00:14.0/usb1/1-1 2>&1
}

# What udev would run, in the words of its version 252 and of 257.
is_given_away() { grep -qE "^run: 'uaccess'|RUN\{builtin\} : uaccess" <<<"$(udev_says "$@")"; }

# Class ff, subclass 0 is nothing that any rule knows.
is_given_away FF0000 FF4201 ||
    { echo 'check_udev_rule: a phone with its debugging interface is not given away' >&2 && exit 1; }
if is_given_away FF4203; then
    echo 'check_udev_rule: the rule takes more than the debugging interface' >&2 && exit 1
fi
echo "The rule gives phones with a debugging interface to who sits at the computer, and only these."
