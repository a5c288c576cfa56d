#!/usr/bin/env bash
# Checks that includes run downward only, and that each library stays in the one place that uses it.
#
#   scripts/check_includes.sh [FOLDER]    the tree to look at, this one when left out
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"
[ -d src ] || { echo "check_includes: no src/ in $PWD" >&2 && exit 2; }

# The rooms from the lowest floor to the highest; rooms on one floor do not know each other either.
floors=('base' 'ui' 'agent bridge export' 'managers' 'session' 'shell')
violations=0

# includes PATTERN PLACE...: the include lines of these places whose file matches the pattern.
includes() {
    grep -rnsE --include='*.h' --include='*.cpp' \
        "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($1)" "${@:2}" || true
}

# forbid WHY, with the offending lines on standard input.
forbid() {
    local lines
    lines=$(cat)
    [ -n "$lines" ] || return 0
    printf '%s:\n%s\n' "$1" "$lines"
    violations=$((violations + 1))
}

one_of() { local IFS='|' && echo "($*)"; }

for ((floor = 0; floor < ${#floors[@]}; ++floor)); do
    for room in ${floors[floor]}; do
        read -r -a not_below <<<"${floors[*]:floor}"
        forbid "src/$room includes what does not stand below it" \
            < <(includes "$(one_of "${not_below[@]}")/" "src/$room" |
                grep -vE "[<\"]$room/" || true)
    done
done

read -r -a rooms <<<"${floors[*]}"
forbid 'the demo phone shares code with the program' \
    < <(includes "$(one_of "${rooms[@]}")/" demo_phone)
forbid 'the launcher shares more than the running of children' \
    < <(includes "$(one_of "${rooms[@]}")/" launcher |
        grep -vE '[<"](base/|bridge/child_process\.h)' || true)
forbid 'Qt outside the shell and its tests' \
    < <(includes 'Q[A-Z]|Qt' --exclude-dir=shell src demo_phone launcher tests)
forbid 'libudev outside session/usb_monitor' \
    < <(includes 'libudev\.h' src demo_phone launcher | grep -v '^src/session/usb_monitor\.' || true)
forbid 'libplist outside export/property_list' \
    < <(includes 'plist/' src demo_phone launcher | grep -v '^src/export/property_list\.' || true)
forbid 'JSON outside the second wire' \
    < <(includes '(simdjson|nlohmann)' src launcher |
        grep -vE '^src/agent/(second_wire|wire_choice)' || true)
forbid 'an include that climbs by path' < <(includes '\.\./' src demo_phone launcher tests)

[ "$violations" -eq 0 ]
