#!/usr/bin/env bash
# Builds the Debian package and leaves it in out/. Installs what that takes.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source packaging/paquetes.sh
instalar_faltantes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_EMPAQUETAR[@]}"

cmake --preset release >/dev/null
cmake --build --preset release --target instalable
mkdir -p out
rm -f out/velda_*.deb
cpack --config build/release/CPackConfig.cmake -B out
rm -r out/_CPack_Packages
ls out/velda_*.deb
