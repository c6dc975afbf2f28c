#!/usr/bin/env bash
# Packs what is built, unpacks it in another place and tries it there: what the package carries may not come from the
# build tree or the system instead.     scripts/prova_pacchetto.sh [BUILD_DIR]     (needs desktop-file-utils)
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build/release}")
sistema=$PWD/pacchetto/librerie_di_sistema.txt
prova=$(mktemp -d)
programma=""
trap '[ -z "$programma" ] || kill "$programma" 2>/dev/null || true; rm -rf "$prova"' EXIT
sbaglio() { echo "Package: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$prova" >/dev/null
mkdir "$prova/altro posto"
tar xzf "$prova"/vaticlo-*.tar.gz -C "$prova/altro posto"
cartella=$(echo "$prova/altro posto"/*)
[ -d "$cartella" ] || sbaglio "not one top folder"
cd /

! grep -rlF "$build" "$cartella" || sbaglio "names the build tree"

while IFS= read -r -d '' file; do
  for nome in $(readelf -d "$file" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p'); do
    [ -e "$cartella/lib/$nome" ] || grep -qxF "$nome" "$sistema" || sbaglio "$file needs $nome, which nobody brings"
  done
done < <(find "$cartella/vaticlo" "$cartella/vaticlo-cli" "$cartella/lib" -type f -print0)

env -i "$cartella/vaticlo-cli" dimostrazione >/dev/null
env -i "$cartella/vaticlo-cli" verifica 315 >"$prova/verifica"
grep -q "Ambata 90 Ba al 3°colpo" "$prova/verifica" || sbaglio "a check went wrong"
[ -s "$cartella/Esiti.txt" ] || sbaglio "the report is not in the program folder"
env -i LD_DEBUG=files "$cartella/vaticlo-cli" aggiorna --da http://127.0.0.1:1/ >/dev/null 2>"$prova/caricate" || true
grep -qF "calling init: $cartella/lib/libcurl.so.4" "$prova/caricate" || sbaglio "downloads with another libcurl"
printf '2026/03/14\tBA\t1\t2\t3\t4\t5\n' >"$prova/una.txt"
(cd "$prova" && cmake -E tar cf una.zip --format=zip una.txt)
env -i LD_DEBUG=files "$cartella/vaticlo-cli" --cartella "$prova/zip" importa "$prova/una.zip" >/dev/null 2>"$prova/caricate"
grep -qF "calling init: $cartella/lib/libarchive.so.13" "$prova/caricate" || sbaglio "unpacks with another libarchive"

# avvia VARIABLE=VALUE ...: the desktop program without a screen, up to where it has read its plugins (20 seconds at most).
avvia() {
  env -i QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR="$prova" "$@" "$cartella/vaticlo" 2>"$prova/detto" &
  programma=$!
  for _ in $(seq 100); do
    sleep 0.2
    kill -0 "$programma" 2>/dev/null || sbaglio "the desktop program does not stay up: $* $(cat "$prova/detto")"
    ! grep -q platforms/ "/proc/$programma/maps" || break
  done
  sleep 1
  kill -0 "$programma" 2>/dev/null || sbaglio "the desktop program does not stay up: $* $(cat "$prova/detto")"
}

mkdir "$prova/guaste"
for nome in libgtk-3.so.0 libwayland-client.so.0; do echo "no library" >"$prova/guaste/$nome"; done
avvia LD_LIBRARY_PATH="$prova/guaste" QT_QPA_PLATFORMTHEME=gtk3
kill "$programma"
wait "$programma" || true

avvia
sed -n 's/^[^/]*\(\/.*\.so[.0-9]*\)$/\1/p' "/proc/$programma/maps" | sort -u >"$prova/mappate"
grep -qxF "$cartella/lib/plugins/platforms/libqoffscreen.so" "$prova/mappate" || sbaglio "its plugins are others"
while IFS= read -r file; do
  nome=$(basename "$file")
  ! compgen -G "${cartella// /\\ }/lib/${nome%%.so*}.so*" >/dev/null || sbaglio "$file loaded instead of its own"
done < <(grep -vF "$cartella/" "$prova/mappate")

guida=$cartella/guida
while IFS= read -r immagine; do
  [ -s "$guida/$immagine" ] || sbaglio "the guide lacks $immagine"
done < <(grep -o 'src="[^"]*"' "$guida/guida.html" | cut -d'"' -f2)
while IFS= read -r nome; do
  nome=$(printf '%b' "${nome//%/\\x}")
  grep -qF "id=\"$nome\"" "$guida/guida.html" || sbaglio "the guide has no place $nome"
done < <(grep -o 'href="#[^"]*"' "$guida/guida.html" | cut -d'"' -f2 | tr -d '#')

XDG_DATA_HOME=$prova/dati "$cartella/installa-voce-menu.sh" >/dev/null
desktop-file-validate "$prova/dati/applications/vaticlo.desktop"
grep -qxF "Exec=\"$cartella/vaticlo\"" "$prova/dati/applications/vaticlo.desktop" || sbaglio "the menu entry leads elsewhere"
