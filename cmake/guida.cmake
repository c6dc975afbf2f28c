# The user's guide beside the program, as a page: guida/guida.html and its pictures.
include(CMakeDependentOption)
find_program(VATICLO_CMARK cmark-gfm)
cmake_dependent_option(VATICLO_GUIDA "Make the user's guide a page, which F1 shows" ON VATICLO_CMARK OFF)
if(NOT VATICLO_CMARK)
  message(STATUS "cmark-gfm is not there: the program is built without the guide's page, and F1 will say so")
endif()
if(NOT VATICLO_GUIDA)
  return()
endif()

set(guida ${PROJECT_BINARY_DIR}/programma/guida)
add_custom_command(OUTPUT ${guida}/guida.html
  COMMAND ${CMAKE_COMMAND} -DCMARK=${VATICLO_CMARK} -DMARKDOWN=${PROJECT_SOURCE_DIR}/docs/guida.md
          -DHTML=${guida}/guida.html -P ${CMAKE_CURRENT_LIST_DIR}/scrivi_guida.cmake
  DEPENDS docs/guida.md ${CMAKE_CURRENT_LIST_DIR}/scrivi_guida.cmake ${CMAKE_CURRENT_LIST_DIR}/guida.html.in
  VERBATIM)
set(pagine ${guida}/guida.html)
file(GLOB immagini RELATIVE ${PROJECT_SOURCE_DIR}/docs CONFIGURE_DEPENDS docs/immagini/*.png)
foreach(immagine ${immagini})
  add_custom_command(OUTPUT ${guida}/${immagine}
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/docs/${immagine} ${guida}/${immagine}
    DEPENDS docs/${immagine} VERBATIM)
  list(APPEND pagine ${guida}/${immagine})
endforeach()
add_custom_target(guida ALL DEPENDS ${pagine})
add_dependencies(vaticlo guida)
