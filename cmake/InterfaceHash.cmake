# Writes a header with the hash of the plug-in interface: of all headers that a plug-in may include, without comments and
# blanks, so that a change of wording doesn't count.
#
# cmake -D ROOT=<folder of the includes> -D HEADERS=<file with a header a line> -D OUTPUT=<header> -P InterfaceHash.cmake
#
# Headers that these include are hashed with them. The output is only written if the hash has changed.

cmake_policy(VERSION 3.25)

file(STRINGS "${HEADERS}" waiting)
set(known "${waiting}")
set(hashes "")
while(waiting)
  list(POP_FRONT waiting header)
  file(READ "${ROOT}/${header}" text)
  string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "#include \"([^\"]+)\"" "\\1" name "${include}")
    # A generated header has no file there; nor has the output.
    if(NOT name IN_LIST known AND EXISTS "${ROOT}/${name}")
      list(APPEND known "${name}")
      list(APPEND waiting "${name}")
    endif()
  endforeach()
  string(REGEX REPLACE "//[^\n]*" "" text "${text}")
  string(REGEX REPLACE "/\\*([^*]|\\*+[^*/])*\\*+/" "" text "${text}")
  string(REGEX REPLACE "[ \t\r\n]+" "" text "${text}")
  string(SHA256 hash "${text}")
  list(APPEND hashes "${header} ${hash}")
endwhile()
list(SORT hashes)
string(SHA256 hash "${hashes}")
string(SUBSTRING "${hash}" 0 16 hash)

set(content "#pragma once\n\n/// The hash of the plug-in interface.\n#define ORVANE_INTERFACE_HASH \"${hash}\"\n")
set(before "")
if(EXISTS "${OUTPUT}")
  file(READ "${OUTPUT}" before)
endif()
if(NOT before STREQUAL content)
  file(WRITE "${OUTPUT}" "${content}")
endif()
