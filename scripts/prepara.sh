# shellcheck shell=bash
# Sourced by run.sh, test.sh and .ci/run: what a fresh Debian 12 needs, and how it is built.

pacchetti="g++ cmake ninja-build pkg-config
  libcurl4-openssl-dev libarchive-dev zlib1g-dev libutf8proc-dev libcli11-dev nlohmann-json3-dev libgtest-dev libgmock-dev
  qt6-base-dev qt6-svg-dev qt6-l10n-tools qt6-tools-dev qt6-translations-l10n libgl1-mesa-dev libqcustomplot-dev
  qt6-wayland qt6-gtk-platformtheme qt6-xdgdesktopportal-platformtheme
  cmark-gfm librsvg2-bin openssl xvfb openbox libxtst-dev"

# installa_pacchetti [MORE ...]: says which of those packages are not there yet, then installs them.
installa_pacchetti() {
  local mancanti=() p come=()
  for p in $pacchetti "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q '^install ok installed' || mancanti+=("$p")
  done
  [ ${#mancanti[@]} -gt 0 ] || return 0
  echo "Mancano questi pacchetti di Debian, che ora vengono installati:"
  echo "  ${mancanti[*]}" | fold -s -w 100
  if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Serve l'amministratore del sistema, e qui non c'è sudo. Da root: apt-get install ${mancanti[*]}" >&2
      return 1
    fi
    echo "sudo può chiedere la password."
    come=(sudo)
  fi
  "${come[@]}" apt-get update -qq
  "${come[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${mancanti[@]}" >/dev/null
}

# costruisci PRESET [OPTIONS ...]: configures and builds in build/PRESET.
costruisci() {
  local preset=$1
  shift
  cmake --preset "$preset" "$@" >/dev/null
  cmake --build --preset "$preset"
}
