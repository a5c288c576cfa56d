#!/usr/bin/env bash
# Runs a command on a Wayland desktop of its own, which nobody sees and where there is no X: sway, with
# one screen in memory. Whatever way the command ends, the desktop is gone afterwards, and its status is
# passed on. What the command starts finds the desktop; `swaymsg` tells what stands there, and `wtype` types.
#
#   scripts/with_wayland.sh scripts/with_demo_phone.sh build/release/bin/velk --connect
set -euo pipefail

[ $# -gt 0 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }

folder=$(mktemp -d)
desktop='' keyboard='' command=''

stop() {
    trap '' INT TERM HUP
    local child
    for child in $command $keyboard $desktop; do
        kill "$child" 2>/dev/null || true
        wait "$child" 2>/dev/null || true
    done
    rm -rf "$folder"
}
trap stop EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

cat >"$folder/config" <<'CONFIG'
xwayland disable
output HEADLESS-1 resolution 2560x1440
default_border none
for_window [app_id=".*"] floating enable
seat seat0 fallback true
CONFIG
# The desktop refuses to run as root; whom it has become need not own what the command keeps.
mkdir -m 700 "$folder/desktop" "$folder/runtime"
as_nobody=()
if [ "$(id -u)" -eq 0 ]; then
    as_nobody=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    chmod 711 "$folder"
    chown 65534:65534 "$folder/desktop"
fi
unset DISPLAY WAYLAND_DISPLAY
export XDG_SESSION_TYPE=wayland SWAYSOCK=$folder/desktop/sway.socket
XDG_RUNTIME_DIR=$folder/desktop HOME=$folder/desktop WLR_BACKENDS=headless WLR_RENDERER=pixman \
    WLR_LIBINPUT_NO_DEVICES=1 "${as_nobody[@]}" sway --config "$folder/config" >"$folder/log" 2>&1 &
desktop=$!
export XDG_RUNTIME_DIR=$folder/runtime

desktop_is_up() { swaymsg --quiet --type get_version 2>/dev/null; }
for _ in {1..200}; do
    if desktop_is_up || ! kill -0 "$desktop" 2>/dev/null; then break; fi
    sleep 0.05
done
desktop_is_up || { echo 'with_wayland: the desktop does not come up' >&2 && cat "$folder/log" >&2 && exit 1; }
for socket in "$folder"/desktop/wayland-*; do
    [ ! -S "$socket" ] || export WAYLAND_DISPLAY=$socket
done

# Without a keyboard no window has the focus. This one types nothing, and is there for an hour.
wtype -s 3600000 &
keyboard=$!

# In the background, so that a signal is heard while the command runs; with its own input.
(trap - INT QUIT && exec "$@") <&0 &
command=$!
status=0
wait "$command" || status=$?
command=''
exit "$status"
