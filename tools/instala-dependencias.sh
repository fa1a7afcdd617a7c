#!/usr/bin/env bash
# Installs the Debian packages the build and the tests need, when they are missing.
set -euo pipefail
pacotes=(cmake make g++ qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libgl-dev sqlite3 ccache)
# --fuzz: also clang and its libFuzzer and sanitizer runtimes, for tools/fuzz.sh.
[ "${1:-}" = --fuzz ] && pacotes+=(clang-14 libclang-rt-14-dev)
faltam=()
for p in "${pacotes[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltam+=("$p")
done
[ ${#faltam[@]} -eq 0 ] && exit 0
echo "Instalando: ${faltam[*]}"
if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi
"${sudo[@]}" apt-get update -qq
DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${faltam[@]}"
