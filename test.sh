#!/usr/bin/env bash
# ./test.sh [CMAKE_OPTIONS ...]: installs what is missing, builds, and runs every test.
set -eu
cd "$(dirname "$0")"
. scripts/prepara.sh
installa_pacchetti
costruisci release "$@"
export QT_QPA_PLATFORM=offscreen
ctest --preset release -j "$(nproc)" --output-on-failure
