# shellcheck shell=bash
# Sourced by pacchetto_windows.sh: the libraries of the program for Windows, static, built by MinGW from Debian's own
# sources. Each is built once; what is built lies in $librerie and, to be carried to another machine, in $librerie.tar.xz.

sorgenti=$lavoro/sorgenti
macchina=x86_64-w64-mingw32
export VATICLO_LIBRERIE_WINDOWS=$librerie

# Sources are asked for beside the system's own settings of apt.
prepara_sorgenti() {
  local apt=$lavoro/apt file
  mkdir -p "$sorgenti" "$apt/parti" "$apt/liste/partial"
  rm -f "$apt/parti"/*
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ ! -f "$file" ] || sed -n 's/^deb /deb-src /p' "$file" >>"$apt/parti/sorgenti.list"
  done
  for file in /etc/apt/sources.list.d/*.sources; do
    [ ! -f "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"$apt/parti/$(basename "$file")"
  done
  apt-get "${opzioni_apt[@]}" update -qq
  touch "$apt/pronto"
}
sorgente() {  # NAME
  (cd "$sorgenti" && apt-get "${opzioni_apt[@]}" source -qq "$1" >/dev/null)
}
opzioni_apt=(-o "Dir::Etc::SourceList=/dev/null" -o "Dir::Etc::SourceParts=$lavoro/apt/parti"
  -o "Dir::State::Lists=$lavoro/apt/liste" -o "APT::Sandbox::User=" -o "Dir::Cache::pkgcache=" -o "Dir::Cache::srcpkgcache=")

# costruisci_librerie NAME ...: those that are not there yet, beside one another: to configure one takes one processor.
costruisci_librerie() {
  local nome attese=() pid esito=0
  for nome in "$@"; do
    [ ! -e "$librerie/fatte/$nome" ] || continue
    [ -e "$lavoro/apt/pronto" ] || prepara_sorgenti
    (
      "libreria_${nome//-/_}"
      segna "$nome"
    ) &
    attese+=($!)
  done
  for pid in "${attese[@]}"; do wait "$pid" || esito=1; done
  return $esito
}
# What is to be told of a library stays with it.
segna() {
  local debian
  debian=$(echo "$sorgenti/$1"-*/debian)
  mkdir -p "$librerie/fatte" "$librerie/licenze"
  if [ -d "$debian" ]; then
    cp "$debian/copyright" "$librerie/licenze/$1.txt"
    dpkg-parsechangelog -l "$debian/changelog" -S Version >"$librerie/licenze/$1.versione"
  fi
  touch "$librerie/fatte/$1"
}
incrocia() {  # SOURCE NAME [OPTIONS ...]: configures it
  local da=$1 nome=$2
  shift 2
  cmake -G Ninja -S "$da" -B "$lavoro/$nome" -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$librerie" -DBUILD_SHARED_LIBS=OFF "$@" >"$lavoro/$nome.log" 2>&1 ||
    { tail -40 "$lavoro/$nome.log" >&2; return 1; }
}
costruisci_in() {  # NAME [TARGET ...]
  local nome=$1
  shift
  ninja -C "$lavoro/$nome" "$@" >>"$lavoro/$nome.log" 2>&1 || { tail -40 "$lavoro/$nome.log" >&2; return 1; }
}
spenti() { local modello=$1; shift; printf -- "-D$modello=OFF " "$@"; }

librerie_logica() {
  mkdir -p "$librerie/include" "$librerie/lib/pkgconfig" "$librerie/share/cmake"
  costruisci_librerie intestazioni utf8proc zlib curl googletest
  costruisci_librerie libarchive  # which looks for zlib
}
librerie_finestre() {
  costruisci_librerie qt6-base
  costruisci_librerie qcustomplot
}

libreria_intestazioni() {  # /usr/include itself must stay out of the cross compiler's way
  cp -r /usr/include/CLI /usr/include/nlohmann "$librerie/include/"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$librerie/share/cmake/"
}

libreria_utf8proc() {
  sorgente utf8proc
  (cd "$sorgenti"/utf8proc-*/ && $macchina-gcc-posix -O2 -DUTF8PROC_STATIC -c utf8proc.c -o utf8proc.obj &&
    $macchina-ar rcs "$librerie/lib/libutf8proc.a" utf8proc.obj && cp utf8proc.h "$librerie/include/")
  # shellcheck disable=SC2016
  printf '%s\n' 'prefix=${pcfiledir}/../..' 'Name: libutf8proc' 'Description: utf8proc' 'Version: 2.8.0' \
    'Libs: -L${prefix}/lib -lutf8proc' 'Cflags: -I${prefix}/include -DUTF8PROC_STATIC' \
    >"$librerie/lib/pkgconfig/libutf8proc.pc"
}

libreria_zlib() {
  sorgente zlib
  incrocia "$(echo "$sorgenti"/zlib-*/)" zlib
  costruisci_in zlib zlibstatic
  cp "$lavoro/zlib/libzlibstatic.a" "$librerie/lib/libz.a"
  cp "$lavoro/zlib/zconf.h" "$sorgenti"/zlib-*/zlib.h "$librerie/include/"
}

libreria_libarchive() {  # zip by zlib, and nothing else of what it knows
  sorgente libarchive
  # shellcheck disable=SC2046
  incrocia "$(echo "$sorgenti"/libarchive-*/)" libarchive $(spenti ENABLE_%s ACL BZip2 CAT CNG CPIO EXPAT ICONV LIBB2 \
    LIBXML2 LZ4 LZMA LZO MBEDTLS NETTLE OPENSSL PCREPOSIX TAR TEST XATTR ZSTD)
  costruisci_in libarchive archive_static
  cp "$lavoro/libarchive/libarchive/libarchive_static.a" "$librerie/lib/libarchive.a"
  cp "$sorgenti"/libarchive-*/libarchive/archive{,_entry}.h "$librerie/include/"
}

libreria_curl() {  # the web alone, its encryption by Windows itself
  sorgente curl
  # shellcheck disable=SC2046
  incrocia "$(echo "$sorgenti"/curl-*/)" curl -DHTTP_ONLY=ON -DCURL_USE_SCHANNEL=ON $(spenti %s BUILD_CURL_EXE \
    BUILD_TESTING CURL_ZLIB USE_LIBIDN2 CURL_USE_LIBSSH2 CURL_USE_LIBPSL ENABLE_MANUAL)
  costruisci_in curl install
}

libreria_googletest() {
  incrocia /usr/src/googletest googletest
  costruisci_in googletest install
}

qt_di_qui=(-DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake)

libreria_qt6_base() {  # windows, printing, their tests; no network, no graphics card, nothing that no window here uses
  sorgente qt6-base
  # shellcheck disable=SC2046
  incrocia "$(echo "$sorgenti"/qt6-base-*/)" qt6-base "${qt_di_qui[@]}" -DCMAKE_BUILD_TYPE=MinSizeRel \
    -DCMAKE_INSTALL_PREFIX="$librerie/qt" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DINPUT_opengl=no \
    $(spenti %s QT_BUILD_EXAMPLES QT_BUILD_TESTS QT_BUILD_TOOLS_WHEN_CROSSCOMPILING) \
    $(spenti QT_FEATURE_%s sql network dbus xml concurrent opengl vulkan direct2d1_1 tabletevent icu glib zstd jpeg gif \
      system_zlib system_pcre2 system_png system_freetype system_harfbuzz androiddeployqt wizard undocommand undostack \
      undogroup undoview keysequenceedit lcdnumber dial fontdialog systemtrayicon movie columnview scroller \
      sharedmemory systemsemaphore)
  costruisci_in qt6-base install
}

libreria_qcustomplot() {
  sorgente qcustomplot
  sed -i -e 's/SHARED qcustomplot/STATIC qcustomplot/' -e '/QCUSTOMPLOT_COMPILE_LIBRARY/d' \
    "$sorgenti"/qcustomplot-*/CMakeLists.txt
  incrocia "$(echo "$sorgenti"/qcustomplot-*/)" qcustomplot "${qt_di_qui[@]}" -DCMAKE_PREFIX_PATH="$librerie/qt" \
    -DUSE_QT_VERSION=6
  costruisci_in qcustomplot install
}

# The licences of all that is built into the programs, and where it comes from, in $lavoro/licenze.
raccogli_licenze() {
  local file nome versione dove=$lavoro/licenze
  rm -rf "$dove" && mkdir -p "$dove/common-licenses"
  {
    echo "Nei programmi sono compilate queste librerie, fatte con MinGW-w64 dai sorgenti di Debian qui elencati"
    echo "(sorgente=versione); le licenze stanno accanto. I sorgenti sono su https://snapshot.debian.org/ e si scaricano"
    echo "anche con \"apt source NOME=VERSIONE\"; la cartella ricetta dice come sono stati usati."
    echo
    for file in "$librerie"/licenze/*.txt; do
      nome=$(basename "$file" .txt)
      cp "$file" "$dove/"
      echo "$nome=$(cat "$librerie/licenze/$nome.versione")"
    done
    for nome in libcli11-dev nlohmann-json3-dev qt6-translations-l10n mingw-w64-x86-64-dev gcc-mingw-w64-x86-64-posix-runtime; do
      # shellcheck disable=SC2016
      versione=$(dpkg-query -W -f '${source:Package}=${source:Version}' "$nome")
      cp "/usr/share/doc/$nome/copyright" "$dove/${versione%%=*}.txt"
      echo "$versione"
    done
  } >"$dove/LEGGIMI.txt"
  sed -i 's/$/\r/' "$dove/LEGGIMI.txt"
  for nome in $(grep -ho '/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]' "$dove"/*.txt | sort -u); do
    cp "$nome" "$dove/common-licenses/"
  done
}
