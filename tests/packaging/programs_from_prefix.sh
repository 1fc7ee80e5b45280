#!/usr/bin/env bash
# Builds the examples in C and C++ against an installed tree, by CMake and by pkg-config, and runs them;
# then once more after the tree has moved to where nothing knew it would be.
# usage: programs_from_prefix.sh PREFIX SOURCE LIBDIR
set -euo pipefail
installed=$1
source=$2
libdir=$3
here=$source/tests/packaging
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# usage: run_programs DIRECTORY WAY
run_programs() {
  local catalogue=$source/samples/catalogue.vcm
  grep -qx '300 messages saved in .*' <("$1/change_field" "$catalogue" 1 0.0125 "$1/changed.vcm") ||
    { echo "$2: the C program does not do its work" >&2; return 1; }
  grep -q '^satellite 300: ' <("$1/read_while_loading" "$catalogue" 300) ||
    { echo "$2: the C++ program does not do its work" >&2; return 1; }
  grep -q '^satellite 300: ' <("$1/trace_sink" 300) ||
    { echo "$2: the program with a trace sink does not do its work" >&2; return 1; }
}

# usage: by_cmake PREFIX DIRECTORY
by_cmake() {
  cmake -S "$here/consumer" -B "$2" -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$1" \
    -DEXAMPLES="$source/examples" >/dev/null
  cmake --build "$2" >/dev/null
  run_programs "$2" "CMake, $1"
}

# usage: by_pkg_config PREFIX DIRECTORY
by_pkg_config() {
  export PKG_CONFIG_PATH=$1/$libdir/pkgconfig LD_LIBRARY_PATH=$1/$libdir
  local vcm host
  vcm=$(pkg-config --cflags --libs vcm)
  host=$(pkg-config --cflags --libs vcm-host)
  mkdir -p "$2"
  # Word splitting is what these flags are made for.
  # shellcheck disable=SC2086
  {
    cc -std=c99 "$source/examples/change_field.c" $vcm -o "$2/change_field"
    c++ -std=c++20 "$source/examples/read_while_loading.cpp" $vcm -pthread -o "$2/read_while_loading"
    cc -std=c99 "$here/consumer/trace_sink.c" $host -Wl,-rpath,"$1/$libdir/vcm" -o "$2/trace_sink"
  }
  run_programs "$2" "pkg-config, $1"
  unset PKG_CONFIG_PATH LD_LIBRARY_PATH
}

cp -a "$installed" "$scratch/first"
by_cmake "$scratch/first" "$scratch/first-cmake"
by_pkg_config "$scratch/first" "$scratch/first-pkg-config"
mv "$scratch/first" "$scratch/moved to here"
by_cmake "$scratch/moved to here" "$scratch/moved-cmake"
mv "$scratch/moved to here" "$scratch/moved"
by_pkg_config "$scratch/moved" "$scratch/moved-pkg-config"
if [ -e "$scratch/moved/bin/vcm" ]; then
  "$scratch/moved/bin/vcm" list "$source/samples/features.vcm" >/dev/null
fi
if grep -rIl "$source" "$scratch/moved"; then
  echo "these installed files know where they were built" >&2
  exit 1
fi
