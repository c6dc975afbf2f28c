# Toolchain: Windows (x86_64) from a Debian machine. The environment variable VATICLO_LIBRERIE_WINDOWS names the folder
# of the libraries that scripts/pacchetto_windows.sh builds.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(macchina x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${macchina}-gcc-posix)
set(CMAKE_CXX_COMPILER ${macchina}-g++-posix)
set(CMAKE_RC_COMPILER ${macchina}-windres)
# A program needs no library beside it but those of Windows.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(ENV{PKG_CONFIG_LIBDIR} $ENV{VATICLO_LIBRERIE_WINDOWS}/lib/pkgconfig)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
set(CMAKE_FIND_ROOT_PATH $ENV{VATICLO_LIBRERIE_WINDOWS} /usr/${macchina})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
