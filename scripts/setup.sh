#!/bin/sh
# Installs what a fresh Debian 12 machine lacks, then configures Vorlex into
# build/ and builds its two programs, the command line and the desktop
# program. With --tests it builds the tests and benchmarks too.
#
#   sh scripts/setup.sh            the programs only (a few minutes)
#   sh scripts/setup.sh --tests    everything ctest runs
set -eu
everything=no
for arg in "$@"; do
  case "$arg" in
  --tests) everything=yes ;;
  *) echo "usage: sh scripts/setup.sh [--tests]" >&2; exit 2 ;;
  esac
done
cd "$(dirname "$0")/.."

# The desktop program needs Qt 6 Widgets, Charts, Print Support and Svg;
# Qt Charts looks for Qt OpenGL, which Debian ships apart.
packages="cmake g++ make libgtest-dev libbenchmark-dev
  qt6-base-dev qt6-charts-dev qt6-svg-dev libqt6opengl6-dev
  libgl-dev libvulkan-dev libxkbcommon-dev fonts-dejavu-core"
# shellcheck disable=SC2086
sh scripts/install-missing.sh $packages

cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DVORLEX_BUILD_BENCH=ON
if [ "$everything" = yes ]; then
  cmake --build build -j"$(nproc)"
else
  cmake --build build -j"$(nproc)" --target vorlex vorlex-gui
fi
