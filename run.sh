#!/usr/bin/env bash
# Installs what is missing, builds, and starts Vaticlo; without a screen it shows a check in the terminal.
set -eu
cd "$(dirname "$0")"
. scripts/prepara.sh
installa_pacchetti
cmake --preset release >/dev/null
cmake --build --preset release --target vaticlo vaticlo-cli

programma=$PWD/build/release/programma
if [ ! -s "$programma/archivion71.dat" ]; then
  echo "Prima esecuzione: $programma non ha ancora estrazioni, eccone di inventate per provare."
  "$programma/vaticlo-cli" dimostrazione || true
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$programma/vaticlo"
fi
echo
echo "Nessuno schermo: una verifica nel terminale."
echo "\$ vaticlo-cli verifica 315"
exec "$programma/vaticlo-cli" verifica 315
