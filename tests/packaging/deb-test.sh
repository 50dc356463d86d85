#!/usr/bin/env bash
# Builds the Debian package into a temporary directory and checks its name, contents and control
# fields, that Depends names the package of every Qt 6 and xcb library the program links, and
# that lintian finds no error. Skipped (77) where the Debian tools are missing.
set -euo pipefail
build_dir="$1"
version="$2"

for tool in dpkg-deb dpkg-shlibdeps dpkg; do
    command -v "$tool" >/dev/null || { echo "SKIP: $tool is missing"; exit 77; }
done
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

cpack --config "$build_dir/CPackConfig.cmake" -B "$work" >"$work/cpack.log" 2>&1 ||
    fail "cpack: $(cat "$work/cpack.log")"
deb="$work/vantrel_${version}_$(dpkg --print-architecture).deb"
[ -f "$deb" ] || fail "no $(basename "$deb"); made: $(cd "$work" && ls ./*.deb)"

contents="$(dpkg-deb -c "$deb" | awk '{ print $6 }')"
for file in ./usr/bin/vantrel ./usr/libexec/vantrel-input-helper \
    ./usr/share/polkit-1/actions/com.vantrel.Vantrel.policy \
    ./usr/share/applications/com.vantrel.Vantrel.desktop \
    ./usr/share/metainfo/com.vantrel.Vantrel.metainfo.xml \
    ./usr/share/icons/hicolor/scalable/apps/vantrel.svg \
    ./usr/share/icons/hicolor/48x48/apps/vantrel.png \
    ./usr/share/dbus-1/services/com.vantrel.Vantrel.service \
    ./usr/share/man/man1/vantrel.1.gz ./usr/share/doc/vantrel/copyright \
    ./usr/share/vantrel/translations/vantrel_de.qm ./usr/share/vantrel/translations/vantrel_ja.qm; do
    grep -qxF "$file" <<<"$contents" || fail "the package lacks $file"
done
dpkg-deb -x "$deb" "$work/root"
grep -qx 'Exec=/usr/bin/vantrel' "$work/root/usr/share/dbus-1/services/com.vantrel.Vantrel.service" ||
    fail "the packaged D-Bus service does not start /usr/bin/vantrel"
grep -qF '"org.freedesktop.policykit.exec.path">/usr/libexec/vantrel-input-helper<' \
    "$work/root/usr/share/polkit-1/actions/com.vantrel.Vantrel.policy" ||
    fail "the packaged polkit action does not name /usr/libexec/vantrel-input-helper"

for field in Package Version Architecture Maintainer Section Description Depends; do
    [ -n "$(dpkg-deb -f "$deb" "$field")" ] || fail "the control field $field is empty"
done
[ "$(dpkg-deb -f "$deb" Package)" = vantrel ] || fail "the package is not named vantrel"
[ "$(dpkg-deb -f "$deb" Version)" = "$version" ] || fail "the package version is not $version"
# Qt's own texts (standard buttons, dialogs) in the user's language.
grep -q qt6-translations-l10n <<<"$(dpkg-deb -f "$deb" Recommends)" ||
    fail "Recommends lacks qt6-translations-l10n"

# Every Qt 6 and xcb library the program links must be named by its package in Depends.
depends="$(dpkg-deb -f "$deb" Depends)"
needed="$(objdump -p "$work/root/usr/bin/vantrel" | awk '$1 == "NEEDED" { print $2 }' |
    grep -E '^lib(Qt6|xcb|xkbcommon)')"
[ -n "$needed" ] || fail "the program links no Qt 6 or xcb library"
# Read into files first: a reader that stops early would break the pipe and end the script.
ldconfig -p >"$work/ldconfig.txt"
for library in $needed; do
    path="$(awk -v lib="$library" '$1 == lib { print $NF; exit }' "$work/ldconfig.txt")"
    [ -n "$path" ] || fail "ldconfig does not know $library"
    dpkg -S "$(readlink -f "$path")" >"$work/owner.txt" 2>/dev/null || dpkg -S "$path" >"$work/owner.txt" 2>/dev/null ||
        fail "no package owns $path"
    package="$(sed -n '1s/:.*//p' "$work/owner.txt")"
    grep -qE "(^|, )$package( |,|$)" <<<"$depends" || fail "Depends lacks $package (for $library): $depends"
done

if command -v lintian >/dev/null; then
    lintian --no-tag-display-limit "$deb" >"$work/lintian.log" 2>&1 || true
    ! grep -E '^E: ' "$work/lintian.log" || fail "lintian reports errors"
fi
echo "PASS"
