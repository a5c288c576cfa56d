#!/usr/bin/env bash
# The window on a desktop without X: what is tested of it elsewhere without a display holds here, a
# tour goes through, the desktop is told its name, keys work, what is copied can be pasted elsewhere,
# and a second start asks for the front with the token that it was given.
#
#   wayland_test.sh SCRIPTS VELK SHELL_TEST
set -euo pipefail
if [ "${4:-}" != --inside ]; then exec "$1/with_wayland.sh" "$0" "$@" --inside; fi
scripts=$1 velk=$2 shell_test=$3
export QT_QPA_PLATFORM=wayland VELK_BIN=$(dirname "$2")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_CACHE_HOME=$folder/cache XDG_DATA_HOME=$folder/data folder velk

fail() { echo "FAILED: $1" >&2 && exit 1; }

# Where a Wayland desktop hears what a screen reader is told, the tests' own reader does not.
"$shell_test" --gtest_filter='-Screen_Reader.hears*' >"$folder/log" 2>&1 ||
    { grep -A 9 'Failure\|ERROR' "$folder/log" >&2 && fail 'the tests of the window'; }

"$scripts/with_demo_phone.sh" "$velk" --tour "$folder/tour" >"$folder/log" 2>&1 ||
    { cat "$folder/log" >&2 && fail 'the tour'; }
grep -q '^Contacts: 240 rows$' "$folder/log" || fail 'the tour has found no contacts'

person() {
    fail() { echo "FAILED: $1" >&2 && exit 1; }
    wait_until() {
        for _ in {1..100}; do if "$@"; then return 0; fi && sleep 0.1; done
        return 1
    }
    is_known_by_name() {
        local tree
        tree=$(swaymsg --raw --type get_tree)
        grep -q '"name": "Velk"' <<<"$tree" && grep -q '"app_id": "org.velk.Velk"' <<<"$tree"
    }
    # The contacts are there once the phone is connected; until then the keys do nothing. From the
    # search box Tab leads over seven buttons to the rows.
    local tabs=(-k Tab -k Tab -k Tab -k Tab -k Tab -k Tab -k Tab -k Tab)
    copies_contacts() {
        wtype -M ctrl 1 -s 200 f -m ctrl -s 200 "${tabs[@]}" -s 100 -M ctrl a -s 100 c -m ctrl -s 300
        [ "$(wl-paste --no-newline 2>/dev/null | wc -l)" -ge 239 ]
    }
    # Pasted into the search box, a number leaves its row alone to be copied.
    pastes_a_number() {
        wl-copy -- "${row##*$'\t'}"
        wtype -M ctrl f -s 100 a -s 100 v -m ctrl -s 300 "${tabs[@]}" -s 100 -M ctrl a -s 100 c -m ctrl -s 300
        [ "$(wl-paste --no-newline 2>/dev/null)" = "$row" ]
    }
    asks_for_front() { grep -q 'activate("token-of-a-launcher", wl_surface' "$folder/wire"; }

    WAYLAND_DEBUG=client "$velk" --connect >/dev/null 2>"$folder/wire" &
    trap "kill $! && wait" EXIT
    wait_until is_known_by_name || fail 'the desktop does not know the window by its name'
    wait_until copies_contacts || fail 'what was copied cannot be pasted'
    local row
    row=$(wl-paste --no-newline | sed -n 100p)
    wait_until pastes_a_number || fail 'what was copied elsewhere cannot be pasted here'
    XDG_ACTIVATION_TOKEN=token-of-a-launcher "$velk" || fail 'the second start'
    wait_until asks_for_front || fail 'the window does not ask for the front'
}
export -f person
"$scripts/with_demo_phone.sh" bash -euo pipefail -c person
