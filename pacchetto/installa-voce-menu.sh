#!/bin/sh
# Mette Vaticlo nel menu delle applicazioni di chi lo esegue; con --togli lo toglie. Da ripetere se la cartella si sposta.
set -eu
cartella=$(cd "$(dirname "$0")" && pwd -P)
voci=${XDG_DATA_HOME:-$HOME/.local/share}/applications
voce=$voci/vaticlo.desktop

if [ "${1:-}" = --togli ]; then
  rm -f "$voce"
  echo "Tolta la voce $voce"
  exit
fi

# Due scritture di un percorso: com'è, e tra virgolette in una riga di comando.
percorso=$(printf %s "$cartella" | sed 's/\\/\\\\/g')
comando=$(printf %s "$cartella/vaticlo" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g')
mkdir -p "$voci"
{
  grep -v -e '^Exec=' -e '^Icon=' "$cartella/vaticlo.desktop"
  printf '%s\n' "Exec=\"$comando\"" "TryExec=$percorso/vaticlo" "Icon=$percorso/vaticlo.svg"
} >"$voce"
echo "Scritta la voce $voce"
