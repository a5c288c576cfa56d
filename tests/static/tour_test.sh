#!/usr/bin/env bash
# The whole program at work: a tour of the demo phone ends well, has found its contacts and photos and
# has left a picture of the contacts; one without a phone fails.
#
#   tour_test.sh with_demo_phone.sh VELK
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_QPA_PLATFORM=offscreen XDG_CACHE_HOME=$folder/cache
printed=$(VELK_BIN=$(dirname "$2") "$1" "$2" --tour "$folder")
grep -q '^Contacts: 240 rows$' <<<"$printed"
grep -q '^Photos: 40 rows$' <<<"$printed"
grep -q '^Toolbar: SMS(1500)$' <<<"$printed"
[ -s "$folder"/*-contacts.png ]
status=0
VELK_ADB=/nowhere "$2" --tour "$folder/none" 2>"$folder/why" || status=$?
[ "$status" -eq 1 ] && grep -q 'no phone was reached' "$folder/why"
