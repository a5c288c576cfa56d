#!/usr/bin/env bash
# Builds the agent's package.
#
#   android/build.sh WORK_FOLDER PACKAGE
#
# What lies in WORK_FOLDER is used again, so only the first build needs the network. The key that signs the
# package is made by the first build and stays with the person: a phone takes an update only from
# the same key.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

fail() {
    printf 'agent: %s\n' "$*" >&2
    exit 1
}

# Debian's packages, by the command that each one brings.
needed=(
    javac:default-jdk-headless keytool:default-jdk-headless mvn:maven
    aapt:aapt zipalign:zipalign apksigner:apksigner zip:zip unzip:unzip
)

check_commands() {
    local one missing=''
    for one in "${needed[@]}"; do
        if command -v "${one%%:*}" >/dev/null || [[ "$missing " == *" ${one#*:} "* ]]; then continue; fi
        missing+=" ${one#*:}"
    done
    [ -z "$missing" ] || fail "these packages are missing:$missing"
}

tools_are_whole() {
    (cd "$tools" && sha256sum --check --status "$here/tools/sha256") 2>/dev/null
}

fetch_tools() {
    mkdir -p "$tools"
    if tools_are_whole; then return; fi
    mvn --batch-mode --quiet -Dstyle.color=never --file "$here/tools/pom.xml" "-Dtools=$tools" dependency:copy-dependencies ||
        fail 'Maven did not deliver the platform classes and the class-to-dex tool'
    tools_are_whole || fail "what Maven delivered to $tools is not what was expected"
}

# The numbers of the resources, which the code names.
number_resources() {
    rm -rf generated && mkdir generated
    aapt package -f -m -J generated -M "$here/AndroidManifest.xml" -S "$here/res" \
        -I "$tools/android-all.jar"
}

# Another compiler warns of other things, which are no reason to stop whoever builds with it.
tried_compiler='javac 17'
warnings_are_errors() {
    [ "${VELK_WARNINGS_AS_ERRORS:-}" = ON ] && [[ $(javac -version 2>&1) == "$tried_compiler".* ]]
}

compile() {
    local strict=()
    if warnings_are_errors; then strict=(-Werror); fi
    rm -rf classes && mkdir classes
    javac --release 8 -XDsuppressNotes -Xlint:all,-options,-deprecation,-classfile "${strict[@]}" -g:source,lines \
        -classpath "$tools/android-all.jar" -d classes \
        "$here"/src/velk/phone/android/*.java generated/velk/phone/android/R.java
    # Dex of the oldest supported Android: the tool refuses what such a phone cannot run.
    java -classpath "$tools/dalvik-dx.jar" com.android.dx.command.Main \
        --dex --min-sdk-version=19 --output=classes.dex classes
}

# By this entry the computer knows the package as ours.
write_mark() {
    local version
    version=$(sed -n 's/.*android:versionName="\([^"]*\)".*/\1/p' "$here/AndroidManifest.xml")
    mkdir -p assets
    printf '%s\n' "$version" >assets/velk.phone.android.agent
}

# The same files give the same package: sorted, with one date, without the owner's name.
assemble() {
    rm -rf content resources.zip unaligned.apk aligned.apk && mkdir content
    aapt package -f -M "$here/AndroidManifest.xml" -S "$here/res" -A assets \
        -I "$tools/android-all.jar" -F resources.zip >/dev/null
    unzip -q resources.zip -d content
    cp classes.dex content/
    find content -exec touch -d '2020-01-01 00:00:00 UTC' {} +
    (cd content && find . -type f | sed 's|^\./||' | LC_ALL=C sort |
        TZ=UTC zip -q -X -n .arsc:.png ../unaligned.apk -@)
    zipalign -f 4 unaligned.apk aligned.apk
}

make_key() {
    keys=${XDG_DATA_HOME:-$HOME/.local/share}/org.velk.Velk
    if [ -s "$keys/agent-key.p12" ] && [ -s "$keys/agent-key.password" ]; then return; fi
    mkdir -p "$keys" && chmod 700 "$keys"
    (
        umask 077
        rm -f "$keys/agent-key.p12"
        head -c 24 /dev/urandom | base64 >"$keys/agent-key.password"
        keytool -genkeypair -keystore "$keys/agent-key.p12" -storetype PKCS12 \
            -storepass:file "$keys/agent-key.password" -alias agent -keyalg RSA -keysize 2048 \
            -validity 18250 -dname CN=Velk 2>/dev/null
    ) || fail "no key could be made in $keys"
}

sign() {
    apksigner sign --ks "$keys/agent-key.p12" --ks-pass "file:$keys/agent-key.password" \
        --min-sdk-version 19 --v1-signing-enabled true --v2-signing-enabled true \
        --v3-signing-enabled true --v4-signing-enabled false --out signed.apk aligned.apk
}

[ $# -eq 2 ] || fail 'usage: build.sh WORK_FOLDER PACKAGE'
check_commands
mkdir -p "$1" "$(dirname "$2")"
package=$(cd "$(dirname "$2")" && pwd)/$(basename "$2")
cd "$1"
tools=$PWD/tools
fetch_tools
number_resources
compile
write_mark
assemble
make_key
sign
mv signed.apk "$package"
