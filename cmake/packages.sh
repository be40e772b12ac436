# Sourced by ./run, ./test, ./package and the CI: installs the Debian packages that are missing, and says so.
#
#     need_packages PACKAGE...

need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "These Debian packages, or what they stand for here, are needed: ${missing[*]}" >&2
    return 1
  fi
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What building and running need.
build_packages=(g++ cmake python3 ninja-build ccache qt6-base-dev qt6-multimedia-dev qt6-svg-dev qt6-translations-l10n libgl-dev libimagequant-dev
  fontconfig fonts-dejavu-core fonts-dejavu-extra fonts-ipafont-gothic)
# What the tests, benchmarks and checks need on top.
test_packages=(libgtest-dev libbenchmark-dev clang-format clang-tidy)
# What counting the lines that run needs on top.
coverage_packages=(gcovr)
# What making and checking packages needs on top.
package_packages=(dpkg-dev file gzip lintian desktop-file-utils appstream)
# What building for Windows and packing for it need on top, and what its tests need.
windows_packages=(dpkg-dev g++-mingw-w64-x86-64-posix mingw-w64-tools nsis unzip)
windows_test_packages=(googletest wine wine64 xdotool xvfb xauth openbox imagemagick)
# What the fuzz targets need on top.
fuzz_packages=(clang libclang-rt-dev)
# What a look at the program without a display needs.
screen_packages=(xvfb xauth openbox imagemagick)
