#!/usr/bin/env bash
# Installs what is missing, builds Vantrel and runs the whole test suite.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
build_vantrel
cd "$VANTREL_BUILD_DIR"
ctest --output-on-failure --timeout 300 -j "$(nproc)" "$@"
