#!/usr/bin/env bash
# Installs under a prefix of the system and as a program folder, runs both, and renews both: the data have to stay.
#   scripts/prova_installazione.sh [BUILD_DIR]     (needs desktop-file-utils, appstream)
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
posto='bin/vaticlo(-cli)?|lib/vaticlo/([^/]+|(Metodi|guida)/.*)|share/(applications|metainfo|doc/vaticlo)/[^/]+'
posto+='|share/icons/hicolor/[^/]+/apps/vaticlo\.(png|svg)'
posto+='|share/(man/man1|bash-completion/completions|zsh/site-functions|fish/vendor_completions\.d)/[^/]+'
altrove=$(cd "$prova/sistema" && find . -type f | grep -vxE "\./usr/($posto)") || true
[ -z "$altrove" ] || sbaglio "these have no place in a system: $altrove"
share=$prova/sistema/usr/share
for file in applications/vaticlo.desktop metainfo/it.vaticlo.vaticlo.metainfo.xml man/man1/vaticlo-cli.1 \
  bash-completion/completions/vaticlo-cli zsh/site-functions/_vaticlo-cli fish/vendor_completions.d/vaticlo-cli.fish \
  icons/hicolor/{scalable/apps/vaticlo.svg,{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256}/apps/vaticlo.png}; do
  [ -s "$share/$file" ] || sbaglio "no share/$file"
done
desktop-file-validate "$share/applications/vaticlo.desktop"
detto=$(appstreamcli validate --no-net "$share"/metainfo/*.xml) || sbaglio "$detto"
comando=$prova/sistema/usr/bin/vaticlo-cli
versione=$("$comando" --version | cut -d' ' -f2)
grep -m1 '<release ' "$share"/metainfo/*.xml | grep -qF "version=\"$versione\"" ||
  sbaglio "the newest release that the metainfo tells is not $versione"
rinnova_e_confronta "$HOME/Vaticlo" "$comando" "$comando" --help
[ ! -e "$prova/sistema/usr/lib/vaticlo/archivion71.dat" ] || sbaglio "data in the system's folder"

cartella="$prova/una cartella"
installa=(cmake --install "$build" --component cartella --prefix "$cartella")
"${installa[@]}" >/dev/null
[ ! -e "$cartella/lib" ] || sbaglio "libraries that nobody asked for"
rinnova_e_confronta "$cartella" "$cartella/vaticlo-cli" "${installa[@]}"
echo "The installation is good: under a prefix of the system, and as a folder."
