# orvane_add_plugin(name sources…)
# A plug-in of Orvane: a module that exports the two functions of ORV_PLUGIN and nothing else. Its file is called
# libkal_orvane_extender_<name>.so, so that the tool finds it in the folders that it searches. It is compiled as C++20 with
# Qt and moc, every symbol must be found when it is linked, and it has the stamp of the headers that it is compiled with.
function(orvane_add_plugin name)
  add_library(${name} MODULE ${ARGN})
  set(script "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/plugin.map")
  target_compile_features(${name} PRIVATE cxx_std_20)
  target_link_libraries(${name} PRIVATE Orvane::sdk ${ORVANE_PLUGIN_LIBRARIES})
  target_link_options(${name} PRIVATE "LINKER:--version-script=${script}")
  # The sanitizers of clang leave symbols to the program.
  if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize" AND NOT KAL_SANITIZE)
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
  set_target_properties(
    ${name}
    PROPERTIES PREFIX lib
               OUTPUT_NAME "kal_orvane_extender_${name}"
               LINK_DEPENDS "${script}"
               CXX_EXTENSIONS OFF
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON
               AUTOMOC ON
               AUTORCC ON)
endfunction()
