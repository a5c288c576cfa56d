#!/usr/bin/env bash
# Makes the Debian package, has it judged by the tools that judge such things, and tries it: it is
# installed into a clean system, shows the demo phone there, and is removed again.
#
#   scripts/check_package.sh      the package is left in build/release, the tour's pictures below it
#
# As root a Debian of its own is made for that, with the mirror that this computer's apt uses. Where
# that is not possible, the package is unpacked into a folder that takes the system's place.
set -euo pipefail
cd "$(dirname "$0")/.."
export LANG=C.UTF-8

say() { printf '\n== %s\n' "$*"; }
fail() { echo "check_package: $1" >&2 && exit 1; }

build_package() {
    rm -f build/release/velk_*.deb
    cmake --preset release --log-level=WARNING
    cmake --build --preset release --target velk velk_adb velk_icons demo_phone agent
    cpack --preset release
    package=$(echo build/release/velk_*_"$(dpkg --print-architecture)".deb)
    [ -f "$package" ] || fail 'no package was made'
    android/check.sh build/release/agent/velk.phone.android.PhoneConnActivity.apk
}

# The version stands in three files; a release that forgets one is noticed here.
check_versions() {
    local version
    version=$(dpkg-deb --field "$package" Version)
    [ "$(dpkg-parsechangelog --file packaging/changelog --show-field Version)" = "$version" ] ||
        fail "the changelog's newest entry is not for version $version"
    [ "$(grep -o '<release version="[^"]*"' packaging/*.metainfo.xml | head -n 1 | cut -d '"' -f 2)" = \
        "$version" ] || fail "the newest release of the metainfo is not version $version"
}

# What --help names is in the manual page and is completed.
check_options() {
    local option page
    page=$(man --local-file build/release/packaging/velk.1 | col -b)
    for option in $(build/release/bin/velk --help | grep -oE '^ +--[a-z]+'); do
        grep -qe "^ *$option" <<<"$page" || fail "the manual page lacks $option"
        grep -qe "$option" packaging/velk.bash-completion || fail "$option is not completed"
    done
}

judge_package() {
    lintian --allow-root --fail-on error,warning --show-overrides "$package"
    desktop-file-validate packaging/*.desktop
    appstreamcli validate --no-net packaging/*.metainfo.xml
    local unpacked complaints status=0
    unpacked=$(mktemp -d)
    dpkg-deb --extract "$package" "$unpacked"
    appstreamcli validate-tree --no-net "$unpacked" || status=$? # that its parts name each other, too
    [ -f "$unpacked/usr/share/icons/hicolor/512x512/apps/org.velk.Velk.png" ] ||
        fail 'the package has no finished icons'
    rm -r "$unpacked"
    [ "$status" -eq 0 ] || fail 'its parts do not fit together'
    complaints=$(man --warnings --encoding=utf8 --local-file build/release/packaging/velk.1 2>&1 >/dev/null)
    [ -z "$complaints" ] || fail "the manual page: $complaints"
    bash -n packaging/velk.bash-completion
    check_versions
    check_options
}

scripts/install_dependencies.sh --package
say 'Package'
build_package
dpkg-deb --info "$package"
dpkg-deb --contents "$package"
say 'Validators'
judge_package
say 'On a clean system'
rm -rf build/release/package-tour
may_mount() {
    unshare --mount --pid --fork sh -c 'mount -t tmpfs none /mnt && mount -t proc proc /proc' 2>/dev/null
}
if [ "$(id -u)" -eq 0 ] && may_mount; then
    scripts/check_udev_rule.sh
    # Whatever is mounted or started in there is gone when it ends.
    unshare --mount --pid --fork --kill-child scripts/try_package.sh "$package" build/release
else
    echo 'Not root, or not allowed to mount: no clean system can be made, and udev cannot be asked.'
    scripts/try_package.sh --unpacked "$package" build/release
fi
printf '\n%s (%s bytes) is fine.\n' "$package" "$(stat --format=%s "$package")"
