# Run by the installation: the methods, the libraries and plugins that a desktop without Qt lacks, then their licences.
set(cartella "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

# copia(FILE WHERE): the file itself, not the link to it, under the name it is asked for by.
function(copia file dove)
  cmake_path(GET dove PARENT_PATH sopra)
  file(MAKE_DIRECTORY "${sopra}")
  file(REAL_PATH "${file}" vero)
  file(COPY_FILE "${vero}" "${dove}" ONLY_IF_DIFFERENT)
endfunction()

# An installation over a folder in use leaves the predictions in it.
foreach(nome "Metodo 1" "Metodo 2")
  if(NOT EXISTS "${cartella}/Metodi/${nome}.dat")
    copia("${metodo_vuoto}" "${cartella}/Metodi/${nome}.dat")
  endif()
endforeach()

set(moduli ${plugins})
list(TRANSFORM moduli PREPEND "${radice_plugins}/")
file(STRINGS "${sistema}" escluse REGEX "^[^#]")
string(REGEX REPLACE "([.+])" "\\\\\\1" escluse "${escluse}")
list(TRANSFORM escluse PREPEND "^")
list(TRANSFORM escluse APPEND "$")
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${programmi} LIBRARIES "${curl}" MODULES ${moduli}
  PRE_EXCLUDE_REGEXES ${escluse} RESOLVED_DEPENDENCIES_VAR librerie)
list(APPEND librerie "${curl}")

foreach(libreria ${librerie})
  cmake_path(GET libreria FILENAME nome)
  copia("${libreria}" "${cartella}/lib/${nome}")
endforeach()
foreach(plugin ${plugins})
  copia("${radice_plugins}/${plugin}" "${cartella}/lib/plugins/${plugin}")
endforeach()

include(${CMAKE_CURRENT_LIST_DIR}/licenze.cmake)
