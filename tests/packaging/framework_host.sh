#!/usr/bin/env bash
# Links the library with a framework's libraries by the one option, installs it, and sees that a program
# built against it talks to that framework.
# usage: framework_host.sh SOURCE
set -euo pipefail
source=$1
here=$source/tests/packaging
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake -S "$here/framework" -B "$scratch/framework" -DVCM_SOURCE="$source" >/dev/null
cmake --build "$scratch/framework" -j2 >/dev/null

# Also in a tree that was made for the bundled host.
cmake -S "$source" -B "$scratch/build" -DCMAKE_BUILD_TYPE=Release -DVCM_DEVELOPER=OFF >/dev/null
cmake -S "$source" -B "$scratch/build" -DVCM_HOST_LIBRARY_DIR="$scratch/framework" >/dev/null
cmake --build "$scratch/build" -j2 >/dev/null
cmake --install "$scratch/build" --prefix "$scratch/installed" >/dev/null
if find "$scratch/installed" | grep hostcore; then
  echo "the bundled host was installed as well" >&2
  exit 1
fi

cat >"$scratch/CMakeLists.txt" <<END
cmake_minimum_required(VERSION 3.25)
project(Introduce LANGUAGES C)
find_package(Vcm 1.0 CONFIG REQUIRED)
add_executable(introduce "$here/consumer/introduce.c")
target_link_libraries(introduce PRIVATE Vcm::vcm)
END
cmake -S "$scratch" -B "$scratch/introduce" -DCMAKE_PREFIX_PATH="$scratch/installed" >/dev/null
cmake --build "$scratch/introduce" >/dev/null
"$scratch/introduce/introduce" >"$scratch/out" 2>"$scratch/err"
grep '^a library of the stand-in framework' "$scratch/out"
grep '^framework: GetSatKey: Unable to locate satellite number  *300 in the VCM binary tree' "$scratch/err"
