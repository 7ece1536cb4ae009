#!/usr/bin/env bash
# Sets up, builds and starts Quorvane.
set -euo pipefail
cd "$(dirname "$0")"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ] && [ "$(uname)" = Linux ]; then
  echo "Quorvane needs a display to show its windows, and none is set (DISPLAY and WAYLAND_DISPLAY are empty)." >&2
  exit 1
fi

. scripts/setup.sh
# shellcheck disable=SC2086 # one word for each package
install_packages $build_packages
echo "Building Quorvane ..."
build_preset release
exec build/release/quorvane "$@"
