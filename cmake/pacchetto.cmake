# The program folder that carries all it needs: component `librerie` adds Debian's libraries, CPack packs the whole.

# An RPATH, not a RUNPATH: it also holds for what the carried libraries and plugins need, and for dlopen, so these stay
# as the distribution made them.
foreach(programma ${programmi})
  set_target_properties(${programma} PROPERTIES INSTALL_RPATH "$ORIGIN/lib" BUILD_WITH_INSTALL_RPATH ON)
  target_link_options(${programma} PRIVATE -Wl,--disable-new-dtags)
endforeach()

set(in_librerie COMPONENT librerie EXCLUDE_FROM_ALL)
install(FILES pacchetto/qt.conf pacchetto/LEGGIMI.txt DESTINATION . ${in_librerie})

set(plugins
  platforms/libqxcb.so
  platforms/libqwayland-generic.so
  platforms/libqoffscreen.so
  platformthemes/libqgtk3.so
  platformthemes/libqxdgdesktopportal.so
  wayland-shell-integration/libxdg-shell.so
  platforminputcontexts/libcomposeplatforminputcontextplugin.so
  platforminputcontexts/libibusplatforminputcontextplugin.so
  printsupport/libcupsprintersupport.so
  iconengines/libqsvgicon.so
  imageformats/libqsvg.so)
get_target_property(qt Qt6::Core LOCATION)
cmake_path(GET qt PARENT_PATH qt)
find_library(VATICLO_CURL libcurl.so.4)
find_library(VATICLO_LIBARCHIVE libarchive.so.13)
install(CODE "
  set(programmi \"$<TARGET_FILE:vaticlo>\" \"$<TARGET_FILE:vaticlo-cli>\")
  set(radice_plugins \"${qt}/qt6/plugins\")
  set(plugins \"${plugins}\")
  set(aperte \"${VATICLO_CURL}\" \"${VATICLO_LIBARCHIVE}\")
  set(sistema \"${PROJECT_SOURCE_DIR}/pacchetto/librerie_di_sistema.txt\")" ${in_librerie})
install(SCRIPT cmake/completa_pacchetto.cmake ${in_librerie})

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_FILE_NAME vaticlo-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${PROJECT_BINARY_DIR};vaticlo;cartella;/;${PROJECT_BINARY_DIR};vaticlo;librerie;/")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
