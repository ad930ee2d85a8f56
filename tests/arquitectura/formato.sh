#!/bin/sh
# Every source as clang-format would write it. 77: cannot be checked here.
command -v clang-format >/dev/null || { echo "clang-format is missing"; exit 77; }
cd "$1" || exit 1
find src tests bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 clang-format --dry-run -Werror
