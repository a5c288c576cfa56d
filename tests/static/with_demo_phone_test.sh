#!/usr/bin/env bash
# scripts/with_demo_phone.sh must give a command a phone of its own, pass its status on, and leave
# nothing behind, whatever way the command ends.
#
#   with_demo_phone_test.sh SCRIPT BIN
set -euo pipefail
script=$1
export VELK_BIN=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failures=0

fail() {
    echo "FAILED: $1" >&2
    failures=$((failures + 1))
}

# The command tells of itself its server's port.
tell='echo "$ANDROID_ADB_SERVER_PORT" >"$0"'

server_is_gone() {
    local port
    read -r port <"$folder/told"
    ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null
}

wait_until_told() {
    for _ in {1..600}; do
        [ -s "$folder/told" ] && return
        sleep 0.05
    done
    return 1
}

status=0
input=$(echo typed | "$script" sh -c "$tell; \"\$VELK_BIN/adb\" get-state; cat; exit 7" \
    "$folder/told") || status=$?
[ "$status" -eq 7 ] || fail "the command's status 7 came out as $status"
[[ $input == *device*typed* ]] || fail "no phone or no input: $input"
server_is_gone || fail 'the adb server is still there after the command'

for signal in INT TERM; do
    rm -f "$folder/told"
    # In a process group of its own, with the signals that a command has in the foreground.
    set -m
    "$script" sh -c "$tell; exec sleep 600" "$folder/told" &
    running=$!
    set +m
    wait_until_told || fail "the command did not start before $signal"
    # A terminal signals all processes of the group, an administrator only the one.
    if [ "$signal" = INT ]; then kill -INT -- "-$running"; else kill -TERM "$running"; fi
    wait "$running" && fail "ended by $signal with status 0"
    server_is_gone || fail "the adb server is still there after $signal"
    kill -0 -- "-$running" 2>/dev/null && fail "processes are left after $signal"
done
[ "$failures" -eq 0 ]
