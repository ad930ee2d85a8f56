#!/usr/bin/env bash
# pelusa.sh BUILD: builds the fuzzers there and runs each for a while. 77: no clang here.
# An input that breaks one is left in BUILD; "Test unit written to" names it.
set -euo pipefail
construido=$(realpath -m "$1")
cd "$(dirname "$(readlink -f "$0")")/../.."
command -v clang++-14 >/dev/null || { echo "clang++-14 is missing"; exit 77; }

cmake --preset fuzz -B "$construido" >/dev/null
cmake --build "$construido"
for nombre in perfil favoritas; do
  nuevas=$construido/nuevas_$nombre  # inputs found on the way
  rm -rf "$nuevas"
  mkdir "$nuevas"
  "$construido/pelusa_$nombre" -seed=1 -runs=200000 -max_total_time=10 -max_len=1024 \
    -dict=tests/fuzz/perfil.dict -verbosity=0 -print_final_stats=1 \
    -artifact_prefix="$construido/" "$nuevas" "tests/fuzz/corpus/$nombre" ||
    exit 1  # its own code for a fault is 77
done
