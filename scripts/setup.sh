# shellcheck shell=bash disable=SC2034 # sourced by scripts that use the names below
# What run.sh, test.sh and the continuous integration share: installing what the build needs and this
# machine lacks, and building. Every step that is not possible stops with one plain sentence.

program_packages="g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-charts-dev libqt6opengl6-dev libqt6svg6
  libgl-dev libsqlitecpp-dev libsqlite3-dev fonts-liberation"
test_packages="$program_packages libgtest-dev libbenchmark-dev libcli11-dev file dpkg-dev python3"

say() { printf '%s\n' "$*"; }
stop() { printf '%s\n' "$*" >&2; exit 1; }

# The packages of the list that are not installed.
missing_packages() {
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
      printf '%s ' "$package"
  done
}

install_packages() {
  command -v apt-get >/dev/null || {
    say "This is no Debian system: please install cmake 3.25, ninja, a C++20 compiler, Qt 6.4 (with" \
      "its SVG and Charts modules), SQLiteCpp and, for the tests, GoogleTest, Google Benchmark and CLI11 yourself."
    return 0
  }
  missing=$(missing_packages "$@")
  [ -n "$missing" ] || return 0
  say "Installing: $missing"
  if [ "$(id -u)" -eq 0 ]; then
    run_as_root=
  elif command -v sudo >/dev/null; then
    run_as_root=sudo
  else
    stop "These packages are missing, and installing them needs root or sudo: $missing"
  fi
  $run_as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq ||
    stop "The list of packages could not be fetched."
  # shellcheck disable=SC2086 # one word for each package
  $run_as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    $missing >/dev/null || stop "These packages could not be installed: $missing"
}

# Both take a preset, and further words for cmake.
configure_preset() {
  cmake --preset "$@" >"$(log_file configure)" 2>&1 || show_log configure
}

build_preset() {
  cmake --build --preset "$@" >"$(log_file build)" 2>&1 || show_log build
}

log_file() {
  mkdir -p build
  printf 'build/%s.log' "$1"
}

show_log() {
  cat "$(log_file "$1")" >&2
  stop "The $1 step failed; what it said stands above."
}
