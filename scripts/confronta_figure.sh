#!/usr/bin/env bash
# Takes the pictures of the guide anew and compares them with those that are kept: as many, as large, and the same to
# the eye. The kept ones have fewer colours, so a point differs when it is more than a shade away.
#   scripts/confronta_figure.sh VATICLO_FIGURE     (the program; needs ImageMagick)
set -euo pipefail
programma=$(realpath "${1:?vaticlo_figure}")
cd "$(dirname "$0")/.."
ombra=10%   # how far a colour may be from the kept one
diversi=40  # how many points may be further away: less than a letter
prova=$(mktemp -d)
trap 'rm -rf "$prova"' EXIT
nuove=$prova/figure
mkdir "$nuove"
"$programma" "$nuove" 2>"$prova/detto" || { cat "$prova/detto" >&2; exit 1; }

esito=0
sbaglio() { echo "Pictures: $*" >&2; esito=1; }
diff <(ls docs/immagini) <(ls "$nuove") || sbaglio "not the same ones (< kept, > taken)"
for figura in docs/immagini/*.png; do
  nome=$(basename "$figura")
  [ -e "$nuove/$nome" ] || continue
  prima=$(identify -format %wx%h "$figura")
  dopo=$(identify -format %wx%h "$nuove/$nome")
  if [ "$prima" != "$dopo" ]; then
    sbaglio "$nome is $dopo, not $prima"
    continue
  fi
  punti=$(compare -metric AE -fuzz $ombra "$figura" "$nuove/$nome" null: 2>&1) || true
  [[ "$punti" =~ ^[0-9]+$ ]] && [ "$punti" -le $diversi ] || sbaglio "$nome differs in $punti points of $prima"
done
[ $esito = 0 ] || echo "Pictures: CONTRIBUTING says how to take anew those that are meant to differ" >&2
exit $esito
