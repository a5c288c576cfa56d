#!/usr/bin/env bash
# Fails, and says what to do, when something else has the port through which Velk reaches a phone.
set -euo pipefail

port=12300
if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then exit 0; fi
cat >&2 <<IN_USE
Port $port of this computer is in use, and Velk reaches the phone through it.
If another Velk is running, close it. If your adb server still forwards the port from an earlier
session with a real phone, 'adb forward --remove tcp:$port' frees it.
IN_USE
exit 1
