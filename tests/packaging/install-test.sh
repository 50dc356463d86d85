#!/usr/bin/env bash
# Installs the build into a temporary root and checks what a desktop sees there: the file list,
# the desktop entry and metainfo validators, the icons' sizes, the D-Bus service, the installed
# program, and that uninstalling leaves no file behind.
set -euo pipefail
build_dir="$1"
version="$2"

root="$(mktemp -d)"
trap 'rm -rf "$root"' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

DESTDIR="$root" cmake --install "$build_dir" --prefix /usr >/dev/null
cp "$build_dir/install_manifest.txt" "$root.manifest"
trap 'rm -rf "$root" "$root.manifest"' EXIT

sizes=(16 24 32 48 64 128 256)
expected=(
    usr/bin/vantrel
    usr/libexec/vantrel-input-helper
    usr/share/applications/com.vantrel.Vantrel.desktop
    usr/share/dbus-1/services/com.vantrel.Vantrel.service
    usr/share/doc/vantrel/changelog.gz
    usr/share/doc/vantrel/copyright
    usr/share/icons/hicolor/scalable/apps/vantrel.svg
    usr/share/man/man1/vantrel.1.gz
    usr/share/metainfo/com.vantrel.Vantrel.metainfo.xml
    usr/share/polkit-1/actions/com.vantrel.Vantrel.policy
)
for size in "${sizes[@]}"; do expected+=("usr/share/icons/hicolor/${size}x${size}/apps/vantrel.png"); done
for language in de es fr it ja pt_BR ru zh_CN; do
    expected+=("usr/share/vantrel/translations/vantrel_${language}.qm")
done
diff <(printf '%s\n' "${expected[@]}" | sort) <(cd "$root" && find . -type f -o -type l | sed 's|^\./||' | sort) ||
    fail "installed files differ from the expected list (< expected, > installed)"

share="$root/usr/share"
out="$(desktop-file-validate "$share/applications/com.vantrel.Vantrel.desktop" 2>&1)" ||
    fail "desktop-file-validate: $out"
[ -z "$out" ] || fail "desktop-file-validate: $out"
appstreamcli validate --pedantic --no-net "$share/metainfo/com.vantrel.Vantrel.metainfo.xml" >/dev/null ||
    fail "appstreamcli: $(appstreamcli validate --pedantic --no-net "$share/metainfo/com.vantrel.Vantrel.metainfo.xml" 2>&1)"
grep -q "<release version=\"$version\"" "$share/metainfo/com.vantrel.Vantrel.metainfo.xml" ||
    fail "metainfo names no release $version"

# A PNG's width and height are the big-endian words at bytes 16 and 20.
for size in "${sizes[@]}"; do
    read -r width height < <(od -An -tu1 -j16 -N8 "$share/icons/hicolor/${size}x${size}/apps/vantrel.png" |
        awk '{ print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8 }')
    [ "$width $height" = "$size $size" ] || fail "the ${size}x${size} icon is ${width}x${height}"
done

grep -qx 'Exec=/usr/bin/vantrel' "$share/dbus-1/services/com.vantrel.Vantrel.service" ||
    fail "the D-Bus service does not start /usr/bin/vantrel"
grep -qx 'Name=com.vantrel.Vantrel' "$share/dbus-1/services/com.vantrel.Vantrel.service" ||
    fail "the D-Bus service has the wrong name"
gzip -t "$share/man/man1/vantrel.1.gz" || fail "the manual page is no gzip file"

reported="$("$root/usr/bin/vantrel" --version)"
[[ "$reported" == "Vantrel $version "* ]] || fail "installed vantrel --version says '$reported'"
# The installed program finds its translations beside it, wherever the prefix.
LANG=de_DE.UTF-8 LANGUAGE= LC_ALL= "$root/usr/bin/vantrel" --help | grep -q '^Aufruf: vantrel' ||
    fail "installed vantrel --help is not German under LANG=de_DE.UTF-8"

DESTDIR="$root" cmake -DVANTREL_INSTALL_MANIFEST="$root.manifest" -P "$build_dir/Uninstall.cmake" >/dev/null
left="$(cd "$root" && find . -type f -o -type l)"
[ -z "$left" ] || fail "uninstall left: $left"
[ ! -e "$share/doc/vantrel" ] || fail "uninstall left the documentation directory"
echo "PASS"
