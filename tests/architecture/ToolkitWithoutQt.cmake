# A toolkit library needs no Qt: it neither links it nor refers to any of its symbols, which all bear its version.
execute_process(
  COMMAND "${READELF}" --dynamic --wide "${LIBRARY}"
  OUTPUT_VARIABLE dynamic
  COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "NEEDED")
  message(FATAL_ERROR "${LIBRARY}: no list of needed libraries found")
endif()
if(dynamic MATCHES "\\[libQt[^]]*\\]")
  message(FATAL_ERROR "${LIBRARY} needs ${CMAKE_MATCH_0}")
endif()
execute_process(
  COMMAND "${READELF}" --dyn-syms --wide "${LIBRARY}"
  OUTPUT_VARIABLE symbols
  COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES " UND ")
  message(FATAL_ERROR "${LIBRARY}: no list of symbols found")
endif()
if(symbols MATCHES " UND ([^ \n]+@+Qt_6[^ \n]*)")
  message(FATAL_ERROR "${LIBRARY} refers to ${CMAKE_MATCH_1}")
endif()
