#!/usr/bin/env bash
# Starts the built program under Xvfb, opens every window and writes a picture of each into a folder.
#   scripts/schermate.sh FOLDER [SCALE] [BUILD_DIR]     (SCALE 1 or 2; needs xvfb xdotool imagemagick openbox)
set -eu
cd "$(dirname "$0")/.."
uscita=$(mkdir -p "${1:?folder}" && cd "$1" && pwd)
scala=${2:-1}
build=${3:-build/release}
cartella=$(mktemp -d)
schermo=:$((90 + RANDOM % 400))
larghezza=$((1280 * scala))
altezza=$((960 * scala))
Xvfb "$schermo" -screen 0 "${larghezza}x${altezza}x24" >/dev/null 2>&1 &
xvfb=$!
programma=""
trap 'kill $programma $xvfb 2>/dev/null || true; rm -rf "$cartella"' EXIT
export DISPLAY=$schermo QT_SCALE_FACTOR=$scala
unset QT_QPA_PLATFORM
sleep 1
openbox >/dev/null 2>&1 &

cp "$build/programma/vaticlo" "$build/programma/vaticlo-cli" "$cartella"
"$cartella/vaticlo-cli" dimostrazione >/dev/null
"$cartella/vaticlo" &
programma=$!

scatta() { import -window root "$uscita/$1.png"; }
tasti() { for t in "$@"; do xdotool key --delay 60 "$t"; sleep 0.25; done; }
aspetta() { sleep "${1:-0.8}"; }

aspetta 2
scatta 00-splash
xdotool key space
aspetta 2.5
scatta 01-principale
tasti alt+a; scatta 02-menu-archivio; tasti Escape Escape
tasti alt+a i; aspetta; scatta 03-inserisci
tasti 9 9 Tab; aspetta; scatta 04-inserisci-messaggio; tasti Return
tasti alt+a m; aspetta; scatta 05-modifica
tasti alt+t; aspetta; scatta 06-cerca; tasti Escape
tasti alt+v; aspetta; scatta 07-vaticla
for _ in $(seq 45); do xdotool key Up; done; aspetta 1.5
scatta 08-vaticla-esiti
tasti alt+g p c; aspetta; scatta 09-crea-previsione
tasti alt+g p m; aspetta; scatta 10-crea-previsione-ancora
tasti ctrl+F4; tasti alt+g p m; aspetta; tasti Down; aspetta; scatta 11-modifica-previsione
tasti alt+g m c; aspetta; scatta 12-crea-metodo; tasti Escape
tasti alt+g m m; aspetta; scatta 13-modifica-metodo
tasti alt+s; aspetta; tasti alt+e; aspetta; scatta 14-statistica-messaggio; tasti Return
tasti shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab 3 0 0 alt+e; aspetta; scatta 15-statistica
tasti alt+v; aspetta; scatta 15-vincite; tasti ctrl+F4
tasti alt+u Down; scatta 15-menu-utility; tasti Escape Escape
tasti alt+u Return; aspetta; scatta 16-in-gioco
tasti alt+u Down Return; aspetta; scatta 17-vincenti
tasti alt+u Down Down Return; aspetta 1.2; scatta 18-somma-distanza
tasti ctrl+F4 alt+question i; aspetta; scatta 19-informazioni
