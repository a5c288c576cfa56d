#!/usr/bin/env bash
# Brings the demo phone's agent to its ports on this computer, through the adb in VELK_BIN, and then
# runs a command. For use behind scripts/with_demo_phone.sh.
set -euo pipefail
adb=$VELK_BIN/adb
"$adb" install -r "$VELK_BIN/velk.phone.android.PhoneConnActivity.apk" >/dev/null
"$adb" shell am start -a android.intent.action.Main -n velk.phone.android/.PhoneConnActivity >/dev/null
"$adb" shell am broadcast -a openUSBConnect >/dev/null
"$adb" forward tcp:12300 tcp:12186 >/dev/null
"$adb" forward tcp:12301 tcp:12176 >/dev/null
exec "$@"
