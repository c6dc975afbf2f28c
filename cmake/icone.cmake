# The program's picture in the sizes that desktops ask for, drawn from the one that is kept: icone/16x16/vaticlo.png ...
find_program(VATICLO_RSVG rsvg-convert)
if(NOT VATICLO_RSVG)
  message(STATUS "rsvg-convert is not there: the picture is installed without the sizes made from it")
  return()
endif()

set(disegno ${PROJECT_SOURCE_DIR}/src/desktop/artwork/vaticlo.svg)
set(icone "")
foreach(lato 16 22 24 32 48 64 128 256)
  set(icona ${PROJECT_BINARY_DIR}/icone/${lato}x${lato}/apps/vaticlo.png)
  cmake_path(GET icona PARENT_PATH dove)
  add_custom_command(OUTPUT ${icona}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${dove}
    COMMAND ${VATICLO_RSVG} --width ${lato} --height ${lato} --output ${icona} ${disegno}
    DEPENDS ${disegno} VERBATIM)
  list(APPEND icone ${icona})
endforeach()
add_custom_target(icone ALL DEPENDS ${icone})
