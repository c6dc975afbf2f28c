#!/usr/bin/env bash
# How many lines and branches of the logic the tests run, by folder of src/ (Clang, llvm-cov, jq).
#   scripts/copertura.sh           the table
#   scripts/copertura.sh FILE...   those files with the count of each line and branch, without another run
set -euo pipefail
cd "$(dirname "$0")/.."
casa=build/coverage
profilo=$casa/tutti.profdata
if [ $# = 0 ]; then
  cmake --preset coverage >/dev/null
  cmake --build --preset coverage
  rm -rf $casa/profili
  # The processes that the fault tests kill leave no counts.
  LLVM_PROFILE_FILE=$PWD/$casa/profili/%8m.profraw ctest --preset coverage -j "$(nproc)" -E '^guasti:'
  llvm-profdata merge -o $profilo $casa/profili
fi
programmi=()
for programma in $casa/tests/*_test $casa/programma/vaticlo-cli; do programmi+=(-object "$programma"); done
if [ $# != 0 ]; then
  exec llvm-cov show "${programmi[@]:1}" -instr-profile=$profilo -show-branches=count "$@"
fi
llvm-cov export "${programmi[@]:1}" -instr-profile=$profilo -summary-only | jq -r '
  def quanto: "\(.covered)/\(.count)\t\(if .count == 0 then "" else 1000 * .covered / .count | floor / 10 end)%";
  def somma(f): {count: map(f.count) | add, covered: map(f.covered) | add};
  def riga(nome): "\(nome)\t\(somma(.summary.lines) | quanto)\t\(somma(.summary.branches) | quanto)";
  [.data[0].files[] | select(.filename | test("^/usr/|^((?!/src/).)*$") | not) | .filename |= sub("^.*/src/"; "")]
  | "Cartella\tLinee\t\tRami\t", (group_by(.filename | split("/")[0])[] | riga(.[0].filename | split("/")[0])),
    riga("in tutto"), "", "File con meno linee eseguite\tLinee\t\tRami\t",
    (map(select(.summary.lines.percent < 90)) | sort_by(.summary.lines.percent)[] | [.] | riga(.[0].filename))' |
  column -t -s "$(printf '\t')"
