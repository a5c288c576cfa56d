#!/usr/bin/env bash
# Tests the program's client in front of the agent's own classes on this computer, on the ports that
# both wires have here.
#
#   android/end_to_end.sh CLIENT_TEST      the built program jvm_agent_test
set -euo pipefail
[ $# -eq 1 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
agent=''
stop() {
    [ -z "$agent" ] || kill "$agent" 2>/dev/null || true
    wait
    rm -rf "$folder"
}
trap stop EXIT

"$here/demo_agent.sh" 12300 12301 5000 50000 >"$folder/said" 2>"$folder/errors" &
agent=$!
# The first start makes the classes; a quarter of an hour is more than any computer needs.
for ((look = 0; look < 9000; ++look)); do
    if grep -qs '^ready' "$folder/said"; then break; fi
    kill -0 "$agent" 2>/dev/null || { cat "$folder/errors" >&2 && exit 1; }
    sleep 0.1
done
"$1" >"$folder/traces" 2>&1 || { grep -aE '^\[|Failure|Value of|Expected|Actual|Which is' "$folder/traces" >&2 && exit 1; }
grep -aE '^\[ +(OK|PASSED)' "$folder/traces"
