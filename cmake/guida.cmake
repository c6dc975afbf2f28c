# The user's guide beside the program, as a page: guida/guida.html and its pictures.
find_program(VATICLO_CMARK cmark-gfm)
if(NOT VATICLO_CMARK)
  message(FATAL_ERROR "cmark-gfm turns the user's guide into a page and is missing: install the package cmark-gfm")
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

install(FILES ${guida}/guida.html DESTINATION guida)
list(TRANSFORM immagini PREPEND docs/)
install(FILES ${immagini} DESTINATION guida/immagini)
