#!/usr/bin/env bash
# Installs what is missing, builds, and starts Vaticlo; without a screen it shows a check in the terminal.
set -eu
cd "$(dirname "$0")"
. scripts/prepara.sh
installa_pacchetti
costruisci release

programma=build/release/programma
mkdir -p "$programma"
cli=$PWD/build/release/src/console/vaticlo-cli
if [ ! -s "$programma/archivion71.dat" ]; then
  echo "Prima esecuzione: nella cartella $programma ci sono estrazioni e previsioni inventate, per provare."
  "$cli" --cartella "$programma" dimostrazione || true
fi
echo
echo "\$ vaticlo-cli --cartella $programma verifica 315"
exec "$cli" --cartella "$programma" verifica 315
