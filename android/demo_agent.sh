#!/usr/bin/env bash
# Runs the agent's own code on this computer, with a made-up phone around it, until it is ended.
#
#   android/demo_agent.sh FIRST_PORT SECOND_PORT [CONTACTS [MESSAGES]]
#
# The two wires are served on 127.0.0.1, to whoever connects. It prints "ready" when both are there.
set -euo pipefail
[ $# -ge 2 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath -m "${VELK_AGENT_TESTS:-$here/../build/agent-tests}")

"$here/test.sh" "$build" test-compile dependency:build-classpath \
    "-Dmdep.outputFile=$build/classpath" -Dmdep.includeScope=test >&2
exec java -Xmx700m -Drobolectric.offline=true "-Drobolectric.dependency.dir=$build/android" \
    -classpath "$build/test-classes:$build/classes:$(cat "$build/classpath")" \
    velk.phone.android.DemoAgent "$@"
