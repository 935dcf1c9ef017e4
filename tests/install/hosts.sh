#!/usr/bin/env bash
# Hosts build against a moved install's headers: a C host with pkg-config (and the same source as C++), and one
# with CMake's find_package(plovix); each loads the installed libvamlet.so and checks its exports.
source "$(dirname "$0")/common.sh"
install_moved
host_source="$PLOVIX_SOURCE/tests/exports/host.c"
export PKG_CONFIG_PATH="$libdir/pkgconfig"
read -r -a flags <<<"$(pkg-config --cflags --libs plovix)"

# A dlopen host does not need the libraries linked; --as-needed drops them, but they must still be found.
cc -std=c11 -D_DEFAULT_SOURCE -Wall -Wextra -Werror "$host_source" "${flags[@]}" -Wl,--as-needed -ldl -o "$scratch/c_host" ||
  fail "the C host builds with pkg-config"
read -r -a cflags <<<"$(pkg-config --cflags plovix)"
c++ -x c++ -std=c++20 -fsyntax-only -Wall -Werror -include plovix/vamlet.h -include plovix/plovix_host.h \
  "${cflags[@]}" /dev/null || fail "the headers compile as C++"

"$CMAKE" -S "$(dirname "$0")/consumer" -B "$scratch/consumer" -DCMAKE_PREFIX_PATH="$prefix" \
  -DHOST_SOURCE="$host_source" >/dev/null || fail "find_package(plovix)"
"$CMAKE" --build "$scratch/consumer" >/dev/null || fail "the CMake host builds"

export PLOVIX_UI=batch PLOVIX_ANSWER=cancel PLOVIX_LIB_PATH=
"$scratch/c_host" "$libdir/libvamlet.so.0" || fail "the C host with the moved install's libvamlet.so.0"
"$scratch/consumer/cmake_host" "$(cat "$scratch/consumer/library.txt")" || fail "the CMake host with plovix::vamlet"
