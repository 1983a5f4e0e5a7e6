# Writes a header with the hash of the plug-in interface: of all headers that a plug-in may include, without comments and
# blanks, so that a change of wording doesn't count.
#
# cmake -D ROOT=<folder of the includes> -D HEADERS=<file with a header a line> -D OUTPUT=<header> -P InterfaceHash.cmake
#
# Headers that these include are hashed with them. The output is only written if the hash has changed.

cmake_policy(VERSION 3.25)

include("${CMAKE_CURRENT_LIST_DIR}/HeaderClosure.cmake")

file(STRINGS "${HEADERS}" public)
kal_header_closure("${ROOT}" headers ${public})
set(hashes "")
foreach(header IN LISTS headers)
  file(READ "${ROOT}/${header}" text)
  string(REGEX REPLACE "//[^\n]*" "" text "${text}")
  string(REGEX REPLACE "/\\*([^*]|\\*+[^*/])*\\*+/" "" text "${text}")
  string(REGEX REPLACE "[ \t\r\n]+" "" text "${text}")
  string(SHA256 hash "${text}")
  list(APPEND hashes "${header} ${hash}")
endforeach()
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
