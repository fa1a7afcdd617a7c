#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program.
set -euo pipefail
raiz="$(cd "$(dirname "$0")" && pwd)"
"$raiz/tools/instala-dependencias.sh"
"$raiz/tools/compila.sh"
exec "${VRT_BUILD_DIR:-$raiz/build}/vrt" "$@"
