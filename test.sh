#!/usr/bin/env bash
# Sets up, builds and runs every test; needs no display.
set -euo pipefail
cd "$(dirname "$0")"

. scripts/setup.sh
# shellcheck disable=SC2086 # one word for each package
install_packages $build_packages
preset=${1:-release}
echo "Building the tests ($preset) ..."
build_preset "$preset" ${CI:+-DQUORVANE_WARNINGS_AS_ERRORS=ON}
ctest --preset "$preset" -j "$(nproc)"
