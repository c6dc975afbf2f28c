# The program folder, complete and movable: `cmake --install` lays it out, CPack packs it.

if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT)  # no folder of the system: the user writes into this one
  set_property(CACHE CMAKE_INSTALL_PREFIX PROPERTY VALUE ${PROJECT_BINARY_DIR}/vaticlo)
endif()

# An RPATH, not a RUNPATH: it also holds for what the carried libraries and plugins need, and for dlopen, so these stay
# as the distribution made them.
foreach(programma vaticlo vaticlo-cli)
  set_target_properties(${programma} PROPERTIES INSTALL_RPATH "$ORIGIN/lib" BUILD_WITH_INSTALL_RPATH ON)
  target_link_options(${programma} PRIVATE -Wl,--disable-new-dtags)
endforeach()

install(CODE "set(CMAKE_INSTALL_DO_STRIP ON)")
install(TARGETS vaticlo vaticlo-cli DESTINATION .)
install(FILES pacchetto/qt.conf pacchetto/vaticlo.desktop pacchetto/LEGGIMI.txt src/desktop/artwork/vaticlo.svg
  LICENSE CHANGELOG.md DESTINATION .)
install(PROGRAMS pacchetto/installa-voce-menu.sh DESTINATION .)

set(plugins
  platforms/libqxcb.so
  platforms/libqoffscreen.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  printsupport/libcupsprintersupport.so
  iconengines/libqsvgicon.so
  imageformats/libqsvg.so)
get_target_property(qt Qt6::Core LOCATION)
cmake_path(GET qt PARENT_PATH qt)
find_library(VATICLO_CURL libcurl.so.4 REQUIRED)
install(CODE "
  set(programmi \"$<TARGET_FILE:vaticlo>\" \"$<TARGET_FILE:vaticlo-cli>\")
  set(radice_plugins \"${qt}/qt6/plugins\")
  set(plugins \"${plugins}\")
  set(curl \"${VATICLO_CURL}\")
  set(metodo_vuoto \"${PROJECT_BINARY_DIR}/metodo_vuoto.dat\")
  set(sistema \"${PROJECT_SOURCE_DIR}/pacchetto/librerie_di_sistema.txt\")")
install(SCRIPT cmake/completa_pacchetto.cmake)

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME vaticlo-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
