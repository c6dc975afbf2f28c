# One target carries the language level, the warnings and the sanitizers of every other one.
add_library(vaticlo_options INTERFACE)
target_compile_features(vaticlo_options INTERFACE cxx_std_20)
target_compile_options(vaticlo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_COMPILE_WARNING_AS_ERROR ${VATICLO_WERROR})
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # What GCC 12 warns of only with full optimisation is wrong inside its standard library (GCC bugs 105651, 105329,
  # 107852); the sanitizers look for the real ones.
  target_compile_options(vaticlo_options INTERFACE
    -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread -Wno-maybe-uninitialized)
endif()
if(VATICLO_SANITIZE)
  target_compile_options(vaticlo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vaticlo_options INTERFACE -fsanitize=address,undefined)
endif()
if(VATICLO_FUZZ AND NOT VATICLO_SANITIZE)  # with the sanitizers alone a corpus is replayed, not searched on
  target_compile_options(vaticlo_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all)
  target_link_options(vaticlo_options INTERFACE -fsanitize=address,undefined)
endif()

# What our own use of Qt does without: conversions and calls that hide a cost or a slip.
add_library(vaticlo_qt INTERFACE)
target_compile_definitions(vaticlo_qt INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)
