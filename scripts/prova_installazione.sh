#!/usr/bin/env bash
# Installs under a prefix of the system and as a program folder, runs both, and renews both: the data have to stay.
#   scripts/prova_installazione.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build/release}")
prova=$(mktemp -d)
trap 'rm -rf "$prova"' EXIT
export HOME=$prova/casa
sbaglio() { echo "Installation: $*" >&2; exit 1; }

# rinnova_e_confronta FOLDER COMMAND RENEW ...: what a user has changed is the same after the programs were renewed.
rinnova_e_confronta() {
  local cartella=$1 comando=$2 programma
  shift 2
  "$comando" dimostrazione >/dev/null
  "$comando" metodo elimina "Metodo 1" >/dev/null
  mkdir "$prova/prima"
  cp -R "$cartella/archivion71.dat" "$cartella/Metodi" "$prova/prima"
  for programma in vaticlo vaticlo-cli; do echo old >"$cartella/$programma"; done
  "$@" >/dev/null
  "$comando" verifica 315 | grep -q "In gioco" || sbaglio "$comando is not renewed"
  [ "$(wc -c <"$cartella/vaticlo")" -gt 1000 ] || sbaglio "$cartella/vaticlo is not renewed"
  for programma in archivion71.dat Metodi; do
    diff -r "$prova/prima/$programma" "$cartella/$programma" || sbaglio "$cartella: $programma was touched"
  done
  rm -r "$prova/prima"
}

DESTDIR=$prova/sistema cmake --install "$build" --prefix /usr >/dev/null
posto='bin/vaticlo(-cli)?|lib/vaticlo/([^/]+|(Metodi|guida)/.*)|share/(applications|doc/vaticlo|icons/.*/apps)/[^/]+'
posto+='|share/(man/man1|bash-completion/completions|zsh/site-functions|fish/vendor_completions\.d)/[^/]+'
altrove=$(cd "$prova/sistema" && find . -type f | grep -vxE "\./usr/($posto)") || true
[ -z "$altrove" ] || sbaglio "these have no place in a system: $altrove"
comando=$prova/sistema/usr/bin/vaticlo-cli
rinnova_e_confronta "$HOME/Vaticlo" "$comando" "$comando" --help
[ ! -e "$prova/sistema/usr/lib/vaticlo/archivion71.dat" ] || sbaglio "data in the system's folder"

cartella="$prova/una cartella"
installa=(cmake --install "$build" --component cartella --prefix "$cartella")
"${installa[@]}" >/dev/null
[ ! -e "$cartella/lib" ] || sbaglio "libraries that nobody asked for"
rinnova_e_confronta "$cartella" "$cartella/vaticlo-cli" "${installa[@]}"
echo "The installation is good: under a prefix of the system, and as a folder."
