#!/usr/bin/env bash
# Sets up, builds and runs every test; needs no display.
set -euo pipefail
cd "$(dirname "$0")"

. scripts/setup.sh
# shellcheck disable=SC2086 # one word for each package
install_packages $test_packages
preset=${1:-release}
echo "Building the tests ($preset) ..."
configure_preset "$preset" ${CI:+-DQUORVANE_WARNINGS_AS_ERRORS=ON}
build_preset "$preset"
ctest --preset "$preset" -j "$(nproc)"
