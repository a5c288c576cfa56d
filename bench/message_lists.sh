#!/usr/bin/env bash
# Reads 2,000 messages of the demo phone a hundred times through the real adb, with many and with
# one message in each of the agent's packets and for the smallest and a usual size of adb's, and
# counts the lists that came in whole.
#
#   bench/message_lists.sh [BUILD FOLDER [MESSAGES]]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build/release}" && pwd)
messages=${2:-2000}
export VELK_BIN=$build/bin

for packet in 4096 262144; do
    for per_packet in 20 1; do
        printf 'packets of %6d bytes, %2d messages each: ' "$packet" "$per_packet"
        { DEMO_PHONE_OPTIONS="--packet $packet --messages $messages --messages-per-packet $per_packet" \
            scripts/with_demo_phone.sh bench/with_agent.sh \
            "$build/bench/message_lists" 100 "$messages" >/dev/null; } 2>&1
    done
done
