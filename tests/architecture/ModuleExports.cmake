# The plug-in exports its two entry points and nothing else: neither classes nor the operators new and delete, which
# would replace those of the whole process.
execute_process(
  COMMAND "${NM}" --dynamic --defined-only --format=posix "${MODULE}"
  OUTPUT_VARIABLE output
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${output}")
set(exported)
foreach(line IN LISTS lines)
  string(REGEX REPLACE " .*" "" symbol "${line}")
  list(APPEND exported "${symbol}")
endforeach()
list(SORT exported)
if(NOT exported STREQUAL "loadPlugin;unloadPlugin")
  message(FATAL_ERROR "${MODULE} exports: ${exported}")
endif()
