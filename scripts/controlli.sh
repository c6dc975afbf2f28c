#!/usr/bin/env bash
# clang-tidy on every folder of src/, with its check for includes that nothing uses.
#   scripts/controlli.sh [CHECKS]     CHECKS are added: '-clang-analyzer-*' leaves out the static analyzer, which takes
#                                     most of the time
set -euo pipefail
cd "$(dirname "$0")/.."
tidy=clang-tidy-19
command -v $tidy >/dev/null || { echo "$tidy is missing" >&2; exit 1; }
cmake --preset clang -DVATICLO_WERROR=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
radici=(build/clang/include/*)
detto=$(mktemp)
trap 'rm -f "$detto"' EXIT

controlla() { # CHECKS: of the files that are read; not what clang-tidy says of includes that are missing
  xargs -P "$(nproc)" -n 4 $tidy -p build/clang --quiet "${radici[@]/#/--extra-arg=-I$PWD/}" \
    --checks="$1" --warnings-as-errors='*,-misc-include-cleaner' 2>/dev/null |
    awk '/: (error|warning|note): /{di_questo = !/no header providing/} di_questo' | tee -a "$detto"
}
# What is for Windows alone has no headers here.
git ls-files -- 'src/*.cpp' ':!src/*/windows/*' | controlla "${1:+$1,}misc-include-cleaner"
[ ! -s "$detto" ]
