#!/usr/bin/env bash
# run_installed.sh BUILD SOURCE ACCOUNT YEAR CC: installs the library to a folder, moves it, and builds and runs
# the C example against it, once by pkg-config and once by CMake.
set -euo pipefail
build=$1 source=$2 account=$3 year=$4 cc=$5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --component library --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
run=$source/tests/capi/run_example.sh
flags=()
if [ -n "${KAVELIN_SANITIZE:-}" ]; then flags=(-fsanitize=address,undefined); fi

if command -v pkg-config >/dev/null; then
    export PKG_CONFIG_PATH=$work/moved/lib/pkgconfig
    # shellcheck disable=SC2046
    "$cc" -std=c11 "${flags[@]}" -o "$work/by-pkg-config" "$source/examples/c/capital_share.c" \
        $(pkg-config --cflags --libs kavelin) -Wl,-rpath,"$work/moved/lib"
    "$run" "$work/by-pkg-config" "$account" "$year"
else
    echo "no pkg-config here: only CMake is tried"
fi

cmake -S "$source/examples/c" -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_C_FLAGS="${flags[*]}" >/dev/null
cmake --build "$work/build" >/dev/null
"$run" "$work/build/capital-share" "$account" "$year"
