#!/usr/bin/env bash
# scripts/check_includes.sh must let a tidy tree pass and name each kind of wrong include.
#
#   check_includes_test.sh CHECK
set -euo pipefail
check=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# put FILE LINE: a tree with the tidy files, and this one line more.
put() {
    rm -rf "${tree:?}"/*
    mkdir -p "$tree"/src/{base,ui,agent,bridge,export,managers,session,shell} \
        "$tree"/{demo_phone,launcher} "$tree"/tests/{session,shell}
    echo '#include <QWidget>' | tee "$tree/src/shell/window.cpp" >"$tree/tests/shell/window_test.cpp"
    echo '#include <libudev.h>' >"$tree/src/session/usb_monitor.cpp"
    echo '#include <plist/plist.h>' >"$tree/src/export/property_list.cpp"
    echo "$2" >>"$tree/$1"
}

put src/session/session.cpp '#include "managers/contacts.h"'
"$check" "$tree" || fail 'a tidy tree is refused'

while read -r file line; do
    put "$file" "$line"
    output=$("$check" "$tree") && fail "accepted in $file: $line"
    [[ $output == *"$file:"*"$line"* ]] || fail "not named: $file in $output"
done <<'WRONG'
src/base/text.h #include "ui/table.h"
src/agent/client.cpp #include "bridge/runner.h"
src/managers/contacts.cpp #  include <session/views.h>
src/session/views.cpp #include "../shell/window.h"
src/session/views.cpp #include <QtWidgets/QLabel>
tests/session/views_test.cpp #include <QTest>
src/session/views.cpp #include <libudev.h>
src/managers/contacts.cpp #include <plist/plist.h>
src/agent/sms.cpp #include <nlohmann/json.hpp>
src/managers/contacts.cpp #include <simdjson.h>
demo_phone/wire.cpp #include "agent/codec.h"
WRONG
