#!/bin/bash
# The tool behind Fake_Adb. It is started through a link in the directory that holds its answers and
# its records; each of these gets a single write, so that tools that run at once do not mix them.
# The shell stands by its path, because some tests leave nothing on the search path.
LC_ALL=C
directory=${0%/*}
printf '%s\0' "$@" $'\n' >>"$directory/calls"

while [[ ${1-} == -* ]]; do
    case $1 in -[stHPL]) shift ;; esac
    shift
done
words=${*//\//%}
until [ -e "$directory/answer $words" ]; do
    [[ $words == *' '* ]] || exit 0
    words=${words% *}
done
. "$directory/answer $words"

[ -z "$pulled" ] || printf %s "$pulled" >"$3/${2##*/}"
printf %s "$errors" >&2
for ((; repeat > 0; --repeat)); do printf %s "$output"; done
# Nothing that a broken test leaves behind lives longer than a minute.
case $behaviour in
    1) kill -ABRT $$ ;;
    2) printf '%s\0' $$ >>"$directory/hanging" && exec sleep 60 ;;
    3) sleep 60 & printf '%s\0' $! >>"$directory/servers" ;;
esac
exit "$status"
