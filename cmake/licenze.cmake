# Included by completa_pacchetto.cmake: the licences of all that is carried (`librerie`, `moduli`) and of what is built
# into the programs, as the Debian packages they come from tell them, and where their sources are.
find_program(dpkg_query dpkg-query)
if(NOT dpkg_query)
  message(FATAL_ERROR "Debian's packages tell the licences of the carried libraries, and there is no dpkg-query")
endif()

set(pacchetti libcli11-dev nlohmann-json3-dev qt6-translations-l10n)
foreach(file ${librerie} ${moduli})
  file(REAL_PATH "${file}" vero)
  string(REGEX REPLACE "^/usr/lib" "/lib" altro "${vero}")  # a package may still put there what /usr/lib now holds
  execute_process(COMMAND ${dpkg_query} --search ${vero} ${altro} OUTPUT_VARIABLE trovato ERROR_QUIET)
  if(NOT trovato MATCHES "^([^\n,]+)(, [^\n]+)?: /")
    message(FATAL_ERROR "No Debian package owns ${vero}: its licence is not known")
  endif()
  list(APPEND pacchetti ${CMAKE_MATCH_1})
endforeach()
list(REMOVE_DUPLICATES pacchetti)

set(elenco "")
set(comuni "")
foreach(pacchetto ${pacchetti})
  execute_process(COMMAND ${dpkg_query} --show
    "--showformat=\${source:Package}=\${source:Version}: \${Package}\n" ${pacchetto}
    OUTPUT_VARIABLE riga COMMAND_ERROR_IS_FATAL ANY)
  string(APPEND elenco "${riga}")
  string(REGEX REPLACE "=.*" "" sorgente "${riga}")
  string(REGEX REPLACE ":.*" "" nome "${pacchetto}")
  copia(/usr/share/doc/${nome}/copyright "${radice}/licenze/${sorgente}.txt")
  file(STRINGS /usr/share/doc/${nome}/copyright righe REGEX "/usr/share/common-licenses/")
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z0-9.-]*[A-Za-z0-9]" nominate "${righe}")
  list(APPEND comuni ${nominate})
endforeach()
list(REMOVE_DUPLICATES comuni)
foreach(comune ${comuni})
  cmake_path(GET comune FILENAME nome)
  copia(${comune} "${radice}/licenze/common-licenses/${nome}")
endforeach()

file(WRITE "${radice}/licenze/LEGGIMI.txt"
"Le librerie di lib/ vengono, immutate, dai pacchetti di Debian qui elencati (sorgente=versione: pacchetto); i primi
tre, compilati dentro i programmi, sono CLI11 (cli11), JSON for Modern C++ (nlohmann-json3) e i testi italiani di Qt
(qt6-translations).
Le licenze stanno accanto, col nome del sorgente. I sorgenti sono su https://snapshot.debian.org/ e si scaricano anche
con \"apt source NOME=VERSIONE\".

${elenco}")
