#!/usr/bin/env bash
# Configures and builds everything into build/ (or $VRT_BUILD_DIR).
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
build="${VRT_BUILD_DIR:-$raiz/build}"
cmake -S "$raiz" -B "$build" -DCMAKE_BUILD_TYPE="${VRT_BUILD_TYPE:-RelWithDebInfo}"
cmake --build "$build" -j"$(nproc)"
