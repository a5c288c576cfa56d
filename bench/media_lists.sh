#!/usr/bin/env bash
# Reads the demo phone's libraries a hundred times through the real adb, for the smallest and a usual
# size of adb's packets, and counts the lists that came in whole.
#
#   bench/media_lists.sh [BUILD FOLDER [MUSIC PHOTOS VIDEOS BOOKS APPS]]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build/release}" && pwd)
music=${2:-4000} photos=${3:-4000} videos=${4:-1000} books=${5:-1000} apps=${6:-500}
amounts=("$music" "$photos" "$videos" "$books" "$apps")
export VELK_BIN=$build/bin

# Made once and before the phone starts: so many files take longer than a start is waited for.
storage=$(mktemp -d)
trap 'rm -rf "$storage"' EXIT
"$build/bench/media_lists" "$storage" 0 "${amounts[@]}"

for packet in 4096 262144; do
    printf 'packets of %6d bytes:\n' "$packet"
    { DEMO_PHONE_OPTIONS="--packet $packet --storage $storage --music $music --photos $photos \
        --videos $videos --books $books --apps $apps" \
        scripts/with_demo_phone.sh bench/with_agent.sh \
        "$build/bench/media_lists" "$storage" 100 "${amounts[@]}" >/dev/null; } 2>&1
done
