#!/usr/bin/env bash
# Times whole processes on a large made folder: 7,270 draws, 1,000 and 2,000 methods of nine predictions. Prints medians
# over the runs and their ratios to the time that cat needs for the same files, in the same run.
#   bench/processi.sh BUILD_DIR [RUNS]       (BUILD_DIR: a release build with -DVATICLO_BENCH=ON)
set -eu
build=${1:?build folder}
runs=${2:-15}
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cli=$build/programma/vaticlo-cli
for n in 1000 2000; do "$build/bench/crea_cartella_grande" "$dir/$n" 7270 $n; done

once() { # microseconds of one run of a command
  local a b
  a=$(date +%s%N)
  "$@" >/dev/null
  b=$(date +%s%N)
  echo $(((b - a) / 1000))
}
leggi() { cat "$dir/1000/archivion71.dat" "$dir/1000/Metodi/"*.dat; }
median() { sort -n "$1" | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

for ((r = 0; r <= runs; r++)); do # the first round warms up
  t_cat=$(once leggi)
  t_stat=$(once "$cli" --cartella "$dir/1000" statistica 1 7270)
  t_stat2=$(once "$cli" --cartella "$dir/2000" statistica 1 7270)
  t_check=$(once "$cli" --cartella "$dir/1000" verifica 3333)
  ((r == 0)) && continue
  echo "$t_cat" >>"$dir/cat"
  echo "$t_stat" >>"$dir/stat"
  echo "$t_check" >>"$dir/check"
  awk -v c="$t_cat" -v s="$t_stat" 'BEGIN {print s / c}' >>"$dir/r_stat"
  awk -v c="$t_cat" -v s="$t_check" 'BEGIN {print s / c}' >>"$dir/r_check"
  awk -v a="$t_stat2" -v b="$t_stat" 'BEGIN {print a / b}' >>"$dir/r_twice"
done
printf 'cat of the input files        %6d us\n' "$(median "$dir/cat")"
printf 'statistica, 1,000 methods     %6d us   %.2f times cat (aim: at most 3)\n' "$(median "$dir/stat")" "$(median "$dir/r_stat")"
printf 'verifica, 1,000 methods       %6d us   %.2f times cat (aim: at most 2)\n' "$(median "$dir/check")" "$(median "$dir/r_check")"
printf 'statistica, 2,000 : 1,000 methods         %.2f (aim: at most 2.1)\n' "$(median "$dir/r_twice")"
/usr/bin/env time -f 'statistica, most memory        %M KiB (aim: at most 40 MB)' \
  "$cli" --cartella "$dir/1000" statistica 1 7270 2>&1 >/dev/null || true
