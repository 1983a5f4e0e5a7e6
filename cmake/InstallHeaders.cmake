# Installs the private headers that the public ones include: templates need them.
#
# cmake -D ROOT=<folder of the includes> -D HEADERS=<file with a header a line> -D FOLDER=<where to> -P InstallHeaders.cmake

cmake_policy(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/HeaderClosure.cmake")

file(STRINGS "${HEADERS}" public)
kal_header_closure("${ROOT}" all ${public})
foreach(header IN LISTS all)
  if(NOT header IN_LIST public)
    cmake_path(GET header PARENT_PATH folder)
    file(INSTALL DESTINATION "${FOLDER}/${folder}" TYPE FILE FILES "${ROOT}/${header}")
  endif()
endforeach()
