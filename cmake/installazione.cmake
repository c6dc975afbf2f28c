# What `cmake --install` lays out. The data lie beside the programs, so a folder of the system can only be the pattern
# of each user's own:
#   by default              PREFIX/lib/vaticlo is that pattern, and PREFIX/bin starts the user's copy of it;
#   --component cartella    PREFIX itself becomes a program folder, ready to be used;
#   --component librerie    adds the libraries that a desktop without Qt lacks (with VATICLO_BUNDLE).
set(programmi vaticlo-cli)
if(VATICLO_DESKTOP)
  list(APPEND programmi vaticlo)
endif()
set(in_cartella COMPONENT cartella EXCLUDE_FROM_ALL)

function(installa_programmi dove)
  install(TARGETS ${programmi} DESTINATION ${dove} ${ARGN})
  if(TARGET guida)
    install(DIRECTORY docs/immagini DESTINATION ${dove}/guida ${ARGN} FILES_MATCHING PATTERN "*.png")
    install(FILES ${guida}/guida.html DESTINATION ${dove}/guida ${ARGN})
  endif()
endfunction()

installa_programmi(lib/vaticlo)
foreach(nome "Metodo 1" "Metodo 2")
  install(FILES pacchetto/metodo_vuoto.dat DESTINATION lib/vaticlo/Metodi RENAME "${nome}.dat")
endforeach()
foreach(programma ${programmi})
  install(PROGRAMS pacchetto/avvia.sh DESTINATION bin RENAME ${programma})
endforeach()
install(FILES LICENSE CHANGELOG.md DESTINATION share/doc/vaticlo)
if(VATICLO_DESKTOP)
  install(FILES pacchetto/vaticlo.desktop DESTINATION share/applications)
  install(FILES src/desktop/artwork/vaticlo.svg DESTINATION share/icons/hicolor/scalable/apps)
endif()

install(CODE "set(CMAKE_INSTALL_DO_STRIP ON)" ${in_cartella})
installa_programmi(. ${in_cartella})
install(CODE "set(radice \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")" ${in_cartella})
install(SCRIPT cmake/metodi_vuoti.cmake ${in_cartella})
install(FILES LICENSE CHANGELOG.md DESTINATION . ${in_cartella})
if(VATICLO_DESKTOP)
  install(FILES pacchetto/vaticlo.desktop src/desktop/artwork/vaticlo.svg DESTINATION . ${in_cartella})
  install(PROGRAMS pacchetto/installa-voce-menu.sh DESTINATION . ${in_cartella})
endif()

if(VATICLO_BUNDLE AND VATICLO_DESKTOP)
  include(cmake/pacchetto.cmake)
endif()
