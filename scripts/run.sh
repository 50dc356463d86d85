#!/usr/bin/env bash
# Installs what is missing, builds Vantrel and runs it.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_packages "${BUILD_PACKAGES[@]}"
build_vantrel
exec "$VANTREL_BUILD_DIR/src/app/vantrel" "$@"
