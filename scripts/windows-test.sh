#!/usr/bin/env bash
# Builds everything that needs no Qt for 64-bit Windows and runs its tests under Wine, in a Wine
# folder of their own; all of it lies below build/windows. Needs three large Debian packages, which it
# does not install: g++-mingw-w64-x86-64-posix, wine64 and googletest (whose source it builds for
# Windows). Words given to it go to ctest: scripts/windows-test.sh -R loading
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

lacking=
command -v cmake >/dev/null && command -v ninja >/dev/null || lacking=" cmake ninja-build"
command -v x86_64-w64-mingw32-g++-posix >/dev/null || lacking+=" g++-mingw-w64-x86-64-posix"
[ -x /usr/lib/wine/wine64 ] || command -v wine64 >/dev/null || lacking+=" wine64"
[ -d /usr/src/googletest ] || lacking+=" googletest"
[ -z "$lacking" ] || stop "These packages are missing, please install them first:$lacking"

# From source, because the installed library is for this system; a second run finds it made.
build_googletest() {
  cmake -S /usr/src/googletest -B build/windows/googletest-build -G Ninja -DBUILD_GMOCK=OFF \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$PWD/build/windows/googletest" &&
    cmake --build build/windows/googletest-build --target install
}

echo "Building GoogleTest for Windows ..."
build_googletest >"$(log_file googletest)" 2>&1 || show_log googletest
echo "Building the tests for Windows ..."
configure_preset windows ${CI:+-DQUORVANE_WARNINGS_AS_ERRORS=ON}
build_preset windows
ctest --preset windows "$@"
