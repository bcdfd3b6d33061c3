#!/bin/sh
# The second build of CI: the core, the command line and the tests built by
# clang with AddressSanitizer and UndefinedBehaviorSanitizer into
# build-sanitize/, the tests run under them, then every fuzz target for a
# fixed number of inputs (tests/fuzz/fuzz.sh). The desktop program is left
# out: Qt itself is not built with the sanitizers.
#
#   sh scripts/sanitize.sh [INPUTS]    INPUTS per fuzz target (default 1000)
set -eu
inputs=${1:-1000}
cd "$(dirname "$0")/.."

packages="clang-14 libclang-rt-14-dev"
# shellcheck disable=SC2086
sh scripts/install-missing.sh $packages

# -O1 with line tables: quick to build, stack traces with lines, and
# assertions on.
CC=clang-14 CXX=clang++-14 cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Release \
  "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -gline-tables-only" -DVORLEX_BUILD_GUI=OFF -DVORLEX_BUILD_BENCH=OFF \
  -DVORLEX_SANITIZE=ON -DVORLEX_BUILD_FUZZ=ON
cmake --build build-sanitize -j"$(nproc)"
ctest --test-dir build-sanitize --output-on-failure -j"$(nproc)"
sh tests/fuzz/fuzz.sh build-sanitize --runs "$inputs"
