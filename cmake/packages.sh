# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# Sourced by ./run, ./test, ./package and the CI: installs the Debian packages that are missing, and says so.
#
#     need_packages PACKAGE...
#
# Where dpkg doesn't know what is installed (another distribution; Debian without its records), nothing is installed and nothing is
# refused: the build itself shows what is missing, and `hint_packages` says what Debian calls it.

asked_packages=()

# A dpkg that doesn't even know itself has installed nothing here.
packages_known() { dpkg-query -W dpkg >/dev/null 2>&1; }

need_packages() {
  asked_packages+=("$@")
  packages_known || return 0
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
}

install_packages() {
  if ! command -v apt-get >/dev/null; then
    echo "These Debian packages are needed: $*" >&2
    return 1
  fi
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: $*"
  update_lists "${as_root[@]}"
  # Another installation may be under way; ours waits for its end.
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 install -y -qq --no-install-recommends "$@" \
    >/dev/null
}

# apt waits for the lock of the packages, but not for that of its lists. An argument runs what follows it as root.
update_lists() {
  local tries said
  for ((tries = 60; ; tries--)); do
    said=$("$@" env LC_ALL=C apt-get update -qq 2>&1) && return 0
    if [ "$tries" -eq 0 ] || ! grep -q 'Could not get lock' <<<"$said"; then break; fi
    sleep 5
  done
  # Lists of an earlier day may still do.
  echo "$said" >&2
}

hint_packages() {
  packages_known || echo "Is something missing here? Debian calls what is needed: ${asked_packages[*]}" >&2
}

# shellcheck disable=SC2034  # whoever sources this takes the lists that it needs
{
  # What building and running need.
  build_packages=(g++ cmake python3 ninja-build ccache qt6-base-dev qt6-multimedia-dev qt6-svg-dev qt6-translations-l10n libgl-dev libimagequant-dev
    fontconfig fonts-dejavu-core fonts-dejavu-extra fonts-ipafont-gothic)
  # What the tests need on top.
  test_packages=(libgtest-dev)
  # What the checks and the fuzz targets of ./test full need on top.
  full_packages=(clang-format clang-tidy clang libclang-rt-dev)
  # What the benchmarks need on top.
  benchmark_packages=(libbenchmark-dev)
  # What counting the lines that run needs on top.
  coverage_packages=(gcovr)
  # What making and checking packages needs on top.
  package_packages=(dpkg-dev file gzip lintian desktop-file-utils appstream)
  # What building for Windows and packing for it need on top, and what its tests need.
  windows_packages=(dpkg-dev g++-mingw-w64-x86-64-posix mingw-w64-tools nsis unzip)
  windows_test_packages=(googletest wine wine64 xdotool xvfb xauth openbox imagemagick)
  # What building for the browser and packing for it need on top, and what its tests need.
  web_packages=(dpkg-dev emscripten node-acorn python3-fonttools zip)
  web_test_packages=(chromium)
  command -v npm >/dev/null || web_test_packages+=(npm)  # some packages of node bring their own
  # What a look at the program without a display needs.
  screen_packages=(xvfb xauth openbox imagemagick)
}
