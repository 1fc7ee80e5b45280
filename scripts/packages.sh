# Sourced by the other scripts.

# Debian's own programs before others of their names: another Python does not see Debian's modules.
PATH=$(getconf PATH):/usr/sbin:/sbin:$PATH

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)

# Installs the Debian packages of these that are missing.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return 0
  echo "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# Builds in a directory: on a terminal with a line that tells how far it is, elsewhere in silence.
build() {
  if [ -t 1 ]; then
    cmake --build "$1"
  else
    cmake --build "$1" -- --quiet
  fi
}

build_packages=(g++ cmake ninja-build libcli11-dev libfmt-dev nlohmann-json3-dev)
test_packages=(libgtest-dev binutils pkg-config make gfortran doxygen mandoc
  python3 python3-pytest mypy python3-numpy python3-pandas python3-matplotlib python3-distributed)
benchmark_packages=(libbenchmark-dev gfortran python3)
picture_packages=(python3-numpy python3-matplotlib)
fuzz_packages=(clang libclang-rt-dev llvm)
package_packages=(dpkg-dev file lintian)
