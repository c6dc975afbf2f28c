# Run by the installation: the libraries and plugins that a desktop without Qt lacks, then their licences.
set(radice "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

# copia(FILE WHERE): the file itself, not the link to it, under the name it is asked for by.
function(copia file dove)
  cmake_path(GET dove PARENT_PATH sopra)
  file(MAKE_DIRECTORY "${sopra}")
  file(REAL_PATH "${file}" vero)
  file(COPY_FILE "${vero}" "${dove}" ONLY_IF_DIFFERENT)
endfunction()

set(moduli ${plugins})
list(TRANSFORM moduli PREPEND "${radice_plugins}/")
file(STRINGS "${sistema}" escluse REGEX "^[^#]")
string(REGEX REPLACE "([.+])" "\\\\\\1" escluse "${escluse}")
list(TRANSFORM escluse PREPEND "^")
list(TRANSFORM escluse APPEND "$")
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programmi} LIBRARIES ${aperte} MODULES ${moduli}
  PRE_EXCLUDE_REGEXES ${escluse} RESOLVED_DEPENDENCIES_VAR librerie)
list(APPEND librerie ${aperte})

foreach(libreria ${librerie})
  cmake_path(GET libreria FILENAME nome)
  copia("${libreria}" "${radice}/lib/${nome}")
endforeach()
foreach(plugin ${plugins})
  copia("${radice_plugins}/${plugin}" "${radice}/lib/plugins/${plugin}")
endforeach()

include(${CMAKE_CURRENT_LIST_DIR}/licenze.cmake)
