# The program folder as a zip: programs that need nothing beside them, and what tells how they were made.
set(VATICLO_LICENZE "" CACHE PATH "The licences of the libraries that are built into the programs")
install(FILES pacchetto/windows/LEGGIMI.txt DESTINATION . ${in_cartella})
install(DIRECTORY ${VATICLO_LICENZE}/ DESTINATION licenze ${in_cartella})
install(FILES scripts/pacchetto_windows.sh scripts/librerie_windows.sh cmake/mingw.cmake
  DESTINATION licenze/ricetta ${in_cartella})

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME vaticlo-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};vaticlo;cartella;/")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
