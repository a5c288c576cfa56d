#!/usr/bin/env bash
# Tests the agent on this computer, against the code of three Androids.
#
#   android/test.sh [BUILD_FOLDER [MAVEN'S ARGUMENTS...]]
#
# Maven loads what the tests need on the first run. All of it is pinned, so later runs need no network.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath -m "${1:-$here/../build/agent-tests}")
arguments=("${@:2}")

for command in mvn javac aapt; do
    command -v "$command" >/dev/null ||
        { echo "test.sh: $command is missing (Debian: default-jdk-headless maven aapt)" >&2 && exit 1; }
done

maven() { mvn --batch-mode --quiet -Dstyle.color=never --file "$here/pom.xml" "-Dbuild=$build" "$@"; }

# The resources, and their numbers, which the code names.
number_resources() {
    mkdir -p "$build/generated"
    maven dependency:copy -Dartifact=org.robolectric:android-all:14-robolectric-10818077 \
        "-DoutputDirectory=$build/framework"
    aapt package -f -m -J "$build/generated" -M "$here/AndroidManifest.xml" -S "$here/res" \
        -I "$build"/framework/android-all-*.jar -F "$build/resources.apk"
}

# By this file the framework on this computer finds manifest and resources.
describe_package() {
    mkdir -p "$build/configuration/com/android/tools"
    cat >"$build/configuration/com/android/tools/test_config.properties" <<DESCRIPTION
android_merged_manifest=$here/AndroidManifest.xml
android_resource_apk=$build/resources.apk
android_custom_package=velk.phone.android
DESCRIPTION
}

number_resources
describe_package
maven "${arguments[@]:-test}"

# Maven is quiet when all is well.
if [ ${#arguments[@]} -eq 0 ]; then
    run=$(cat "$build"/surefire-reports/TEST-*.xml | grep -o '<testsuite [^>]*' | grep -o ' tests="[0-9]*"' |
        awk -F '"' '{ all += $2 } END { print all }')
    [ "${run:-0}" -gt 0 ] || { echo 'test.sh: no test was run' >&2 && exit 1; }
    echo "$run passed, 0 failed"
fi
