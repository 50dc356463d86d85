# Shared by the run and test scripts: installs missing Debian packages, then configures and
# builds into build/ (or $VANTREL_BUILD_DIR).
set -euo pipefail

VANTREL_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
VANTREL_BUILD_DIR="${VANTREL_BUILD_DIR:-$VANTREL_ROOT/build}"

BUILD_PACKAGES=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev
    libxkbcommon-dev libxkbcommon-x11-dev xkb-data libwayland-dev libwayland-bin wayland-protocols
    libglib2.0-dev
    libxcb1-dev libxcb-xkb-dev libxcb-xinput-dev libxcb-xfixes0-dev libxcb-randr0-dev
    libxcb-shape0-dev libxcb-render0-dev libxcb-sync-dev libxcb-damage0-dev libxcb-xtest0-dev
    libxcb-screensaver0-dev
    fonts-dejavu-core librsvg2-bin desktop-file-utils appstream
    # Translations: lupdate and lrelease with their CMake functions, and Qt's own texts.
    qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
)
# A virtual display and the tools that drive it (tests read the screen through X itself).
# Wayland tests run a headless sway (with XWayland) as an unprivileged user; wtype gives it a
# keyboard. GNOME's input-source settings are written with gsettings. Password fields are
# followed on a real accessibility bus, in a GTK 3 window made by a Python script. The localized
# windows need a font with Japanese and Chinese characters.
DISPLAY_PACKAGES=(xvfb xdotool x11-xserver-utils x11-xkb-utils x11-utils xcompmgr trayer openbox
    dbus-daemon sway xwayland grim wtype util-linux gsettings-desktop-schemas libglib2.0-bin
    qt6-wayland at-spi2-core python3-gi gir1.2-gtk-3.0 fonts-noto-cjk)
# Screenshots of the demonstration on a machine without a display.
DEMO_PACKAGES=(imagemagick)

install_packages() {
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

build_vantrel() {
    local build_type="${VANTREL_BUILD_TYPE:-RelWithDebInfo}"
    cmake -S "$VANTREL_ROOT" -B "$VANTREL_BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE="$build_type" \
        ${VANTREL_CMAKE_ARGS:-} >/dev/null
    cmake --build "$VANTREL_BUILD_DIR" --parallel "$(nproc)"
}
