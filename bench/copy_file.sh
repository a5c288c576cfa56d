#!/usr/bin/env bash
# Copies a file of 200 MB to the demo phone and back, in pairs: as the sections do it, and by the
# real tool itself. Prints the seconds of each pair and their ratio.
#
#   bench/copy_file.sh [BUILD FOLDER [PAIRS [MEGABYTES]]]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build/release}" && pwd)
export VELK_BIN=$build/bin PAIRS=${2:-5} MEGABYTES=${3:-200} BENCH=$build/bench

scripts/with_demo_phone.sh bash <<'BESIDE_THE_PHONE'
set -euo pipefail
here=$(mktemp -d)
trap 'rm -rf "$here"' EXIT
mkdir "$here/back"
head -c "${MEGABYTES}M" /dev/urandom >"$here/film.mp4"
adb=${VELK_ADB:-$(command -v adb)} # not the launcher
on_phone=/sdcard/Movies

seconds() {
    rm -f "$here/back/film.mp4" # what stood there would cost the second one time
    local began=$EPOCHREALTIME
    "$@" >/dev/null 2>&1
    echo "$began $EPOCHREALTIME" | awk '{printf "%.3f", $2 - $1}'
}
pair() {
    printf '%s  Velk %s s, adb %s s, ratio %s\n' "$1" "$2" "$3" \
        "$(echo "$2 $3" | awk '{printf "%.3f", $1 / $2}')"
}

"$adb" shell mkdir -p "$on_phone" </dev/null # the rest of this script is on the standard input
"$adb" push "$here/film.mp4" "$on_phone" >/dev/null
for _ in $(seq "$PAIRS"); do
    pair push "$(seconds "$BENCH/copy_file" push "$here/film.mp4" "$on_phone")" \
        "$(seconds "$adb" push "$here/film.mp4" "$on_phone")"
    pair pull "$(seconds "$BENCH/copy_file" pull "$on_phone/film.mp4" "$here/back")" \
        "$(seconds "$adb" pull -a "$on_phone/film.mp4" "$here/back")"
    cmp "$here/film.mp4" "$here/back/film.mp4"
done
BESIDE_THE_PHONE
