# Sourced by run.sh, test.sh and .ci/run: what a fresh Debian 12 needs, and how it is built.

pacchetti="g++ cmake ninja-build pkg-config
  libcurl4-openssl-dev libutf8proc-dev libcli11-dev libgtest-dev libgmock-dev
  qt6-base-dev libqt6svg6-dev qt6-l10n-tools qt6-tools-dev qt6-translations-l10n libgl1-mesa-dev
  cmark-gfm"

# installa_pacchetti [MORE ...]: installs those packages that are not there yet.
installa_pacchetti() {
  local mancanti="" p
  for p in $pacchetti "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q '^install ok installed' || mancanti="$mancanti $p"
  done
  [ -z "$mancanti" ] && return 0
  local sudo=""
  [ "$(id -u)" = 0 ] || sudo="sudo"
  echo "Installing:$mancanti"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends $mancanti >/dev/null
}

# costruisci PRESET [OPTIONS ...]: configures and builds in build/PRESET.
costruisci() {
  local preset=$1
  shift
  cmake --preset "$preset" "$@" >/dev/null
  cmake --build --preset "$preset"
}
