# What Windows reads in a program: icon, version, manifest.
enable_language(RC)
find_program(VATICLO_RSVG rsvg-convert REQUIRED)
find_program(VATICLO_ICOTOOL icotool REQUIRED)

set(risorse ${PROJECT_BINARY_DIR}/risorse)
file(MAKE_DIRECTORY ${risorse})
set(segno ${PROJECT_SOURCE_DIR}/src/desktop/artwork/vaticlo.svg)
foreach(lato 16 24 32 48 64 256)
  list(APPEND disegna COMMAND ${VATICLO_RSVG} --width ${lato} --output ${risorse}/${lato}.png ${segno})
  list(APPEND lati ${risorse}/${lato}.png)
endforeach()
add_custom_command(OUTPUT ${risorse}/vaticlo.ico DEPENDS ${segno} ${disegna}
  COMMAND ${VATICLO_ICOTOOL} --create --output ${risorse}/vaticlo.ico ${lati} VERBATIM)

foreach(programma vaticlo vaticlo-cli)
  if(TARGET ${programma})
    set(descrizione "Vaticlo: archivio del Lotto, previsioni e verifiche")
    configure_file(${PROJECT_SOURCE_DIR}/pacchetto/windows/vaticlo.rc.in ${risorse}/${programma}.rc @ONLY)
    set_source_files_properties(${risorse}/${programma}.rc TARGET_DIRECTORY ${programma} PROPERTIES
      OBJECT_DEPENDS "${risorse}/vaticlo.ico;${PROJECT_SOURCE_DIR}/pacchetto/windows/vaticlo.manifest")
    target_sources(${programma} PRIVATE ${risorse}/${programma}.rc)
  endif()
endforeach()
add_custom_target(icona DEPENDS ${risorse}/vaticlo.ico)
add_dependencies(vaticlo-cli icona)
