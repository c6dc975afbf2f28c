#!/usr/bin/env bash
# Vaticlo for Windows, cross-built on Debian 12 from Debian's packages and sources alone.
#   scripts/pacchetto_windows.sh          vaticlo-VERSION-windows-x86_64.zip in build/windows: both programs, after all their
#                                         tests under Wine. The first time it also builds Qt: near half an hour.
#   scripts/pacchetto_windows.sh logica   only the logic and the console, and their tests under Wine
# The libraries stay in build/windows/librerie and, as an archive to be carried to another machine, in
# build/windows/librerie.tar.xz: what is there is not built again.
set -euo pipefail
cd "$(dirname "$0")/.."
cosa=${1:-tutto}
lavoro=$PWD/build/windows
librerie=$lavoro/librerie
. scripts/prepara.sh
. scripts/librerie_windows.sh
installa_pacchetti g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 fonts-dejavu-core dpkg-dev librsvg2-bin icoutils \
  xz-utils xauth
mkdir -p "$lavoro"
if [ ! -d "$librerie" ] && [ -e "$librerie.tar.xz" ]; then tar xf "$librerie.tar.xz" -C "$lavoro"; fi

export lavoro
export WINEPREFIX=$lavoro/wine WINEDEBUG=-all LC_ALL=C.UTF-8
# Under Wine, by one server of Wine that stays, so that a start takes a tenth of a second.
prova() {  # BUILD [CTEST OPTIONS ...]
  local build=$1 esito=0
  shift
  wineserver -k || true  # one that was started without this screen shows no window
  wineserver -p || true
  # The font of Windows' own windows, which Wine does not have; and what stays holds no output of the tests.
  wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes' \
    /v 'MS Shell Dlg' /d 'DejaVu Sans' /f >/dev/null 2>&1
  ctest --test-dir "$lavoro/$build" --output-on-failure "$@" || esito=$?
  wineserver -k || true
  return $esito
}
# On a screen of their own, one at a time; Wine does not always give a window the keys.
prova_finestre() {
  xvfb-run -a -s '-screen 0 1400x1000x24' \
    bash -c "$(declare -f prova); openbox 2>/dev/null & prova programma -R '^gui: ' --repeat until-pass:3"
}

librerie_logica
if [ "$cosa" = logica ]; then
  incrocia "$PWD" logica -DVATICLO_DESKTOP=OFF -DVATICLO_WERROR=ON -DCMAKE_CXX_FLAGS_RELEASE=-O1
  costruisci_in logica
  prova logica -j "$(nproc)"
  exit
fi

librerie_finestre
if [ ! "$librerie.tar.xz" -nt "$librerie/fatte" ]; then
  tar cf - -C "$lavoro" librerie | xz -2 -T0 >"$librerie.tar.xz"
fi
raccogli_licenze
incrocia "$PWD" programma -DCMAKE_PREFIX_PATH="$librerie/qt" -DQT_HOST_PATH=/usr -DVATICLO_BUNDLE=ON \
  -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake -DVATICLO_LICENZE="$lavoro/licenze"
costruisci_in programma
prova programma -j "$(nproc)" -E '^gui: '
prova_finestre
(cd "$lavoro/programma" && cpack -B "$lavoro" >/dev/null)
ls -l "$lavoro"/vaticlo-*-windows-x86_64.zip
