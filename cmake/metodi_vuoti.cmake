# The two empty methods that come with the program, laid into the program folder `radice`. A folder that has methods
# keeps the ones it has, and does without those that were deleted.
if(NOT EXISTS "${radice}/Metodi")
  file(MAKE_DIRECTORY "${radice}/Metodi")
  foreach(nome "Metodo 1" "Metodo 2")
    file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/../pacchetto/metodo_vuoto.dat" "${radice}/Metodi/${nome}.dat")
  endforeach()
endif()
