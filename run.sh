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
install_packages $program_packages
echo "Building Quorvane ..."
# Without the tests and what they need, unless this clone has them already.
tests=OFF
if grep -qs model_tests build/release/build.ninja; then tests=ON; fi
configure_preset release -DBUILD_TESTING="$tests"
build_preset release --target quorvane
exec build/release/quorvane "$@"
