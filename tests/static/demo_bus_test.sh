#!/usr/bin/env bash
# The demo phone's bus must show its phone to the command that it runs, take the cable out and put it
# in, pass the command's status on, and leave no socket behind.
#
#   demo_bus_test.sh BIN
set -euo pipefail
bin=$1
export folder=$(mktemp -d)
"$bin/demo_phone" --port 0 --control "$folder/phone" >"$folder/log" &
phone=$!
trap 'kill "$phone"; rm -rf "$folder"' EXIT
for _ in {1..200}; do
    [ -S "$folder/phone" ] && break
    sleep 0.05
done

status=0
umockdev-wrapper "$bin/demo_bus" "$folder/bus" "$folder/phone" bash -c '
    seen() { if [ -e /sys/bus/usb/devices/1-1/idVendor ]; then echo there; else echo gone; fi; }
    seen
    "$0" --tell "$folder/bus" unplug && seen
    "$0" --tell "$folder/bus" plug && seen
    exit 5' "$bin/demo_phone" >"$folder/told" || status=$?
[ "$status" -eq 5 ] || { echo "FAILED: the status 5 came out as $status" >&2 && exit 1; }
[ "$(tr '\n' ' ' <"$folder/told")" = 'there ok gone ok there ' ] ||
    { echo "FAILED: the command saw: $(<"$folder/told")" >&2 && exit 1; }
for _ in {1..100}; do
    [ -e "$folder/bus" ] || exit 0
    sleep 0.05
done
echo 'FAILED: the bus has left its socket' >&2
exit 1
