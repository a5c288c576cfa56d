#!/usr/bin/env bash
# Checks a built package: what it may do, that old phones can run it, and that its signature is whole.
#
#   android/check.sh PACKAGE
set -euo pipefail
[ $# -eq 1 ] || { sed -n '2,/^set/{s/^# \{0,1\}//p}' "$0" >&2 && exit 2; }
package=$1
most_bytes=102400

fail() {
    printf 'check: %s\n' "$*" >&2
    exit 1
}

expect() { [ "$2" = "$3" ] || fail "$1 is '$2' and not '$3'"; }

permissions='READ_CONTACTS WRITE_CONTACTS READ_SMS WRITE_SMS SEND_SMS READ_PHONE_STATE maxSdkVersion=26'
permissions+=' READ_EXTERNAL_STORAGE WRITE_EXTERNAL_STORAGE FOREGROUND_SERVICE'

check_manifest() {
    local badging
    badging=$(aapt dump badging "$package")
    expect 'the name' "$(sed -n "s/^package: name='\([^']*\)'.*/\1/p" <<<"$badging")" velk.phone.android
    expect 'the oldest Android' "$(sed -n "s/^sdkVersion:'\(.*\)'/\1/p" <<<"$badging")" 19
    expect 'the target' "$(sed -n "s/^targetSdkVersion:'\(.*\)'/\1/p" <<<"$badging")" 29
    expect 'the page' "$(sed -n "s/^launchable-activity: name='\([^']*\)'.*/\1/p" <<<"$badging")" \
        velk.phone.android.PhoneConnActivity
    expect 'the list of permissions' \
        "$(sed -n "s/^uses-permission: name='android\.permission\.\([A-Z_]*\)'\(.*\)/\1\2/p" <<<"$badging" | xargs)" \
        "$permissions"
    ! aapt dump xmltree "$package" AndroidManifest.xml | grep -q BOOT_COMPLETED || fail 'it starts at boot'
}

# What a lambda or a default method is made of, no phone of that age runs.
check_code() {
    local folder listing
    folder=$(mktemp -d)
    trap "rm -rf '$folder'" EXIT
    unzip -q "$package" classes.dex assets/velk.phone.android.agent -d "$folder"
    [ -s "$folder/assets/velk.phone.android.agent" ] || fail 'its mark is empty'
    expect 'the format of the code' "$(head -c 7 "$folder/classes.dex" | tail -c 3)" 035
    listing=$(dexdump -d "$folder/classes.dex")
    grep -q 'invoke-virtual' <<<"$listing" || fail 'the code cannot be read'
    ! grep -qE 'invoke-(custom|polymorphic)' <<<"$listing" || fail 'it has lambdas'
    ! grep -qE 'Ljava/(time|util/(function|stream)|nio/file)/' <<<"$listing" || fail 'it uses what old phones lack'
    ! grep -E 'Landroidx?/support|Lkotlin|Lcom/' <<<"$listing" | grep -q 'Class descriptor' ||
        fail 'it has code of others'
}

check_signature() {
    local verified scheme
    verified=$(apksigner verify --verbose --min-sdk-version 19 "$package") || fail 'its signature is broken'
    for scheme in v1 v2 v3; do
        grep -q "^Verified using $scheme scheme.*: true" <<<"$verified" || fail "it lacks a $scheme signature"
    done
    zipalign -c 4 "$package" || fail 'it is not aligned'
}

[ -f "$package" ] || fail "there is no $package"
[ "$(stat -c %s "$package")" -lt "$most_bytes" ] || fail "it has more than $most_bytes bytes"
check_manifest
check_code
check_signature
echo "The package is sound: $(stat -c %s "$package") bytes."
