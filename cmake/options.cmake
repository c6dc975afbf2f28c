# One target carries the language level, the warnings and the sanitizers of every other one.
add_library(vaticlo_options INTERFACE)
target_compile_features(vaticlo_options INTERFACE cxx_std_20)
target_compile_options(vaticlo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
set(CMAKE_CXX_EXTENSIONS OFF)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns of overlapping copies inside "literal" + std::string (GCC bug 105651).
  target_compile_options(vaticlo_options INTERFACE -Wno-restrict)
endif()
if(VATICLO_SANITIZE)
  target_compile_options(vaticlo_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vaticlo_options INTERFACE -fsanitize=address,undefined)
endif()
if(VATICLO_FUZZ)
  target_compile_options(vaticlo_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all)
  target_link_options(vaticlo_options INTERFACE -fsanitize=address,undefined)
endif()
