# find_package(Orvane) within this project: the targets are there already, so that a plug-in is built in the same way here
# and against an installed copy.

include("${CMAKE_CURRENT_LIST_DIR}/OrvanePlugin.cmake")
set(ORVANE_PLUGIN_LIBRARIES kal_warnings)
set(Orvane_FOUND TRUE)
