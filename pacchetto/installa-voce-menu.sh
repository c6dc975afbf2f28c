#!/bin/sh
# Mette Vaticlo nel menu delle applicazioni di chi lo esegue; con --togli lo toglie. Da ripetere se la cartella si sposta.
set -eu
cartella=$(dirname -- "$(readlink -f -- "$0")")
voci=${XDG_DATA_HOME:-$HOME/.local/share}/applications
voce=$voci/vaticlo.desktop

case "${1:-}" in
  --togli)
    rm -f "$voce"
    echo "Tolta la voce $voce"
    exit ;;
  "") ;;
  *)
    echo "Uso: $0 [--togli]" >&2
    exit 2 ;;
esac

# Due scritture di un percorso: com'è, e tra virgolette in una riga di comando.
percorso=$(printf %s "$cartella" | sed 's/\\/\\\\/g')
comando=$(printf %s "$cartella/vaticlo" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g')
mkdir -p "$voci"
{
  grep -v -e '^Exec=' -e '^Icon=' "$cartella/vaticlo.desktop"
  printf '%s\n' "Exec=\"$comando\"" "TryExec=$percorso/vaticlo" "Icon=$percorso/vaticlo.svg"
} >"$voce.nuova"
mv "$voce.nuova" "$voce"
echo "Scritta la voce $voce"
