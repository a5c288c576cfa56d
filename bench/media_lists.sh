#!/usr/bin/env bash
# Reads the demo phone's libraries a hundred times through the real adb, for the smallest and a usual
# size of adb's packets, and counts the lists that came in whole.
#
#   bench/media_lists.sh [BUILD FOLDER [MUSIC PHOTOS VIDEOS BOOKS APPS]]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build/release}" && pwd)
read -r music photos videos books apps <<<"${*:2:5}"
: "${music:=4000}" "${photos:=4000}" "${videos:=1000}" "${books:=1000}" "${apps:=500}"
export VELK_BIN=$build/bin
amounts="--music $music --photos $photos --videos $videos --books $books --apps $apps"

for packet in 4096 262144; do
    printf 'packets of %6d bytes:\n' "$packet"
    { DEMO_PHONE_OPTIONS="--packet $packet $amounts" \
        scripts/with_demo_phone.sh bench/with_agent.sh \
        "$build/bench/media_lists" 100 "$music" "$photos" "$videos" "$books" "$apps" >/dev/null; } 2>&1
done
