# Sourced by the other scripts: installs the Debian packages that a step needs and lacks.
# usage: need_packages PACKAGE...

need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return 0
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  echo "Installing ${missing[*]}"
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake ninja-build libcli11-dev libfmt-dev nlohmann-json3-dev)
test_packages=(libgtest-dev python3 binutils mandoc)
benchmark_packages=(libbenchmark-dev gfortran python3)
fuzz_packages=(clang libclang-rt-dev llvm)
