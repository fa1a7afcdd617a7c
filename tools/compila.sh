#!/usr/bin/env bash
# Configures and builds everything into build/ (or $VRT_BUILD_DIR).
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
build="${VRT_BUILD_DIR:-$raiz/build}"
# VRT_CMAKE_ARGS: further options, e.g. -DVRT_SANITIZE=ON for the sanitizer build (see the README).
cmake -S "$raiz" -B "$build" -DCMAKE_BUILD_TYPE="${VRT_BUILD_TYPE:-RelWithDebInfo}" ${VRT_CMAKE_ARGS:-}
cmake --build "$build" -j"$(nproc)"
