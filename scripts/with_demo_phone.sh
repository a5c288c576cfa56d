#!/usr/bin/env bash
# Runs a command next to a demo phone: an adb server of its own on a free port, with the demo phone
# as its only device. Whatever way the command ends, both are stopped again, and its status is
# passed on. Your own adb server and a phone on the cable are never touched.
#
#   scripts/with_demo_phone.sh build/release/bin/velk --connect
#   scripts/with_demo_phone.sh bash          # look around with adb
#   DEMO_PHONE_OPTIONS='--play unauthorized' scripts/with_demo_phone.sh ./your-test
#
# VELK_BIN             where adb and demo_phone are, build/release/bin when unset
# DEMO_PHONE_OPTIONS   more options for the demo phone; demo_phone --help lists them
set -euo pipefail

[ $# -gt 0 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }

scripts=$(cd "$(dirname "$0")" && pwd)
bin=$(cd "${VELK_BIN:-$scripts/../build/release/bin}" && pwd)
read -r -a phone_options <<<"${DEMO_PHONE_OPTIONS:-}"
folder=$(mktemp -d)
server='' phone='' command=''

is_open() { (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; }
is_running() { [ -n "$1" ] && kill -0 "$1" 2>/dev/null; }

# Tries a condition for at most ten seconds.
wait_until() {
    for _ in {1..200}; do
        if "$@"; then return 0; fi
        sleep 0.05
    done
    return 1
}

fail() {
    echo "with_demo_phone: $1" >&2
    [ ! -s "$folder/log" ] || cat "$folder/log" >&2
    exit 1
}

stop() {
    trap '' INT TERM HUP
    local child
    # The server is asked first: a client of the command's may have started another in its place.
    [ -z "$server" ] || "$bin/adb" kill-server >>"$folder/log" 2>&1 || true
    for child in $command $phone $server; do
        kill "$child" 2>/dev/null || true
        wait_until eval '! is_running '"$child" || kill -KILL "$child" 2>/dev/null || true
    done
    rm -rf "$folder"
}
trap stop EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

start_server() {
    export ANDROID_SDK_ROOT="${ANDROID_SDK_ROOT:-$HOME/Android/Sdk}" # an adb there is found as ever
    # Any of these would lead a client to another server or another phone.
    unset ADB_SERVER_SOCKET ANDROID_ADB_SERVER_ADDRESS ANDROID_SERIAL
    # Also for a server that a client starts by itself: no phone on the cable, no foreign emulator.
    export ADB_USB=0 ADB_EMU=0
    for _ in {1..20}; do
        export ANDROID_ADB_SERVER_PORT=$((20001 + 2 * (RANDOM % 5000)))
        if is_open "$ANDROID_ADB_SERVER_PORT"; then continue; fi
        # Its keys and its log stay out of your home.
        HOME=$folder TMPDIR=$folder "$bin/adb" nodaemon server >>"$folder/log" 2>&1 &
        server=$!
        wait_until server_has_decided || true
        if is_running "$server"; then return 0; fi
    done
    fail 'the adb server does not start'
}
server_has_decided() { is_open "$ANDROID_ADB_SERVER_PORT" || ! is_running "$server"; }

start_phone() {
    "$bin/demo_phone" --port 0 --announce "$ANDROID_ADB_SERVER_PORT" "${phone_options[@]}" \
        >"$folder/phone" 2>>"$folder/log" &
    phone=$!
    wait_until phone_has_decided || true
    { phone_is_ready && is_running "$phone"; } || fail 'the demo phone does not come up'
    # One that plays a bad phone may never be listed.
    [[ ${DEMO_PHONE_OPTIONS:-} == *--play* ]] || wait_until phone_is_listed ||
        fail 'adb does not see the demo phone'
}
phone_is_ready() { grep -q '^port ' "$folder/phone"; }
phone_has_decided() { phone_is_ready || ! is_running "$phone"; }
phone_is_listed() { [ "$("$bin/adb" get-state 2>/dev/null)" = device ]; }

"$scripts/agent_port_is_free.sh"
start_server
start_phone

# In the background, so that a signal is heard while the command runs; with the signals and the
# input that it would have in the foreground.
(trap - INT QUIT && exec "$@") <&0 &
command=$!
status=0
wait "$command" || status=$?
command=''
exit "$status"
