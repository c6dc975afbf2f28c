#!/bin/sh
# The command of a Vaticlo that the system carries. The programs keep their data beside them, so they run from a folder
# of the user's own, ~/Vaticlo: made at the first start, its programs renewed when the system's are others.
set -eu
nome=$(basename -- "$0")
sistema=$(dirname -- "$(readlink -f -- "$0")")/../lib/vaticlo
cartella=${HOME:?}/Vaticlo

if ! cmp -s "$sistema/$nome" "$cartella/$nome"; then
  mkdir -p "$cartella"
  [ -e "$cartella/Metodi" ] || cp -R "$sistema/Metodi" "$cartella"
  for cosa in vaticlo vaticlo-cli guida; do
    [ ! -e "$sistema/$cosa" ] || cp -R --remove-destination "$sistema/$cosa" "$cartella"
  done
fi
exec "$cartella/$nome" "$@"
