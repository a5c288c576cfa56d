#!/usr/bin/env bash
# Reads the demo phone's contacts a hundred times through the real adb, for lists of several sizes
# and for the smallest and a usual size of adb's packets, and counts the lists that came in whole.
#
#   bench/contact_lists.sh [BUILD FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:-build/release}" && pwd)
export VELK_BIN=$build/bin

for packet in 4096 262144; do
    for contacts in 160 240; do
        printf 'packets of %6d bytes, %d contacts: ' "$packet" "$contacts"
        { DEMO_PHONE_OPTIONS="--packet $packet --contacts $contacts --long-names" \
            scripts/with_demo_phone.sh bench/with_agent.sh \
            "$build/bench/contact_lists" 100 "$contacts" >/dev/null; } 2>&1
    done
done
