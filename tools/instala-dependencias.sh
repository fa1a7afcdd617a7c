#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, when they are missing; with nothing missing it only
# asks dpkg once and says nothing.
set -euo pipefail
pacotes=(cmake make g++ qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libsqlite3-dev pkg-config libgl-dev sqlite3 ccache python3)
# --fuzz: also clang and its libFuzzer and sanitizer runtimes, for tools/fuzz.sh.
if [ "${1:-}" = --fuzz ]; then pacotes+=(clang-14 libclang-rt-14-dev); fi
mapfile -t faltam < <(dpkg-query -W -f='${Status} ${Package}\n' "${pacotes[@]}" 2>&1 |
    awk '!/install ok installed/ {print $NF}')
[ ${#faltam[@]} -eq 0 ] && exit 0
echo "Instalando: ${faltam[*]}"
if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${faltam[@]}"
