# vaticlo_folder(NAME LINKS ...): the library of one folder of src/, reached as "NAME/file.h" by those alone that link
# it. Each folder gets an include root of its own that holds nothing but a link to it, so an #include against the
# arrows of the design does not build.
function(vaticlo_folder name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)
  if(ARG_SOURCES)
    add_library(vaticlo_${name} STATIC ${ARG_SOURCES})
    set(scope PUBLIC)
  else()
    add_library(vaticlo_${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(vaticlo_${name} ${scope} ${root})
  target_link_libraries(vaticlo_${name} ${scope} vaticlo_options ${ARG_LINKS})
endfunction()
