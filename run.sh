#!/usr/bin/env bash
# ./run.sh [DIR]: installs what is missing, builds, renews the programs in the program folder DIR (~/Vaticlo), where the
# data stay as they are, and starts Vaticlo there. Without a screen it shows a check in the terminal.
set -eu
cartella=$(realpath -m "${1:-$HOME/Vaticlo}")
cd "$(dirname "$0")"

if [ -d "$cartella" ] && [ -n "$(ls -A "$cartella")" ] && [ ! -e "$cartella/vaticlo-cli" ]; then
  echo "$cartella contiene altro, non Vaticlo: ./run.sh DIR prende una cartella nuova, vuota o di Vaticlo." >&2
  exit 1
fi

. scripts/prepara.sh
installa_pacchetti
cmake --preset release >/dev/null
cmake --build --preset release --target vaticlo vaticlo-cli
prima=build/release/programma  # where this script once kept the data
if [ ! -e "$cartella" ] && [ -s $prima/archivion71.dat ]; then
  mkdir -p "$cartella"
  cp -R $prima/archivion71.dat $prima/Metodi "$cartella"
  echo "Copiati in $cartella l'archivio e i metodi che erano in $prima."
fi
cmake --install build/release --component cartella --prefix "$cartella" >/dev/null
echo "Vaticlo è in $cartella, con l'archivio e i metodi: non sono mai toccati, i programmi sì."

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$cartella/vaticlo"
fi
if [ ! -s "$cartella/archivion71.dat" ]; then
  echo "Prima esecuzione: non ci sono ancora estrazioni, eccone di inventate per provare."
  "$cartella/vaticlo-cli" dimostrazione || true
fi
echo
echo "Nessuno schermo: una verifica nel terminale."
echo "\$ vaticlo-cli verifica 315"
exec "$cartella/vaticlo-cli" verifica 315
