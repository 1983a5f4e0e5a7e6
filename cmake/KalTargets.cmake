# The project's ways to declare a target, one function a kind.

# kal_add_library(name [OBJECT|STATIC] [QT] [HIDDEN] SOURCES … HEADERS … [DEPENDS …] [BASE_DIR dir])
# A library with its public headers, shared unless told otherwise. QT turns on moc, rcc and the precompiled header
# that has Qt in it. HIDDEN hides the symbols of a library with QT from whoever loads it.
function(kal_add_library name)
  cmake_parse_arguments(arg "OBJECT;STATIC;QT;HIDDEN" "BASE_DIR" "SOURCES;HEADERS;DEPENDS" ${ARGN})
  set(kind SHARED)
  if(arg_OBJECT)
    set(kind OBJECT)
  elseif(arg_STATIC)
    set(kind STATIC)
  endif()
  if(NOT arg_BASE_DIR)
    set(arg_BASE_DIR "${PROJECT_SOURCE_DIR}")
  endif()
  add_library(${name} ${kind} ${arg_SOURCES})
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${arg_BASE_DIR}" FILES ${arg_HEADERS})
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE kal_warnings)
  set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  if(kind STREQUAL "SHARED")
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 1)
  endif()
  # For a short build of everything, several sources read their headers once. Who works on one source uses debug.
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  endif()
  if(arg_QT)
    kal_use_qt(${name})
    kal_use_qt_header(${name} "${arg_HIDDEN}")
  else()
    target_precompile_headers(${name} REUSE_FROM kal_std_header)
  endif()
endfunction()

# kal_add_interface_hash(target libraries…)
# Gives a library the header orvane/extender/InterfaceHash.h, with a hash over the public headers of these libraries.
function(kal_add_interface_hash target)
  set(headers "")
  foreach(library IN LISTS ARGN)
    get_target_property(folder ${library} SOURCE_DIR)
    get_target_property(files ${library} HEADER_SET)
    foreach(file IN LISTS files)
      cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY "${folder}")
      cmake_path(RELATIVE_PATH file BASE_DIRECTORY "${PROJECT_SOURCE_DIR}")
      list(APPEND headers "${file}")
    endforeach()
  endforeach()
  set(folder "${PROJECT_BINARY_DIR}/generated")
  set(output "${folder}/orvane/extender/InterfaceHash.h")
  list(JOIN headers "\n" lines)
  file(CONFIGURE OUTPUT "${folder}/interface-headers.txt" CONTENT "${lines}\n" @ONLY)
  list(TRANSFORM headers PREPEND "${PROJECT_SOURCE_DIR}/")
  add_custom_command(
    OUTPUT "${folder}/interface-hash"
    BYPRODUCTS "${output}"
    COMMAND ${CMAKE_COMMAND} -D "ROOT=${PROJECT_SOURCE_DIR}" -D "HEADERS=${folder}/interface-headers.txt" -D
            "OUTPUT=${output}" -P "${PROJECT_SOURCE_DIR}/cmake/InterfaceHash.cmake"
    COMMAND ${CMAKE_COMMAND} -E touch "${folder}/interface-hash"
    DEPENDS ${headers} "${folder}/interface-headers.txt" "${PROJECT_SOURCE_DIR}/cmake/InterfaceHash.cmake"
    COMMENT "Hashing the plug-in interface"
    VERBATIM)
  add_custom_target(${target}_hash DEPENDS "${folder}/interface-hash")
  add_dependencies(${target} ${target}_hash)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${folder}>")
endfunction()

# kal_add_program(name [QT] SOURCES … [DEPENDS …])
function(kal_add_program name)
  cmake_parse_arguments(arg "QT" "" "SOURCES;DEPENDS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_DEPENDS} kal_warnings)
  if(arg_QT)
    kal_use_qt(${name})
  endif()
endfunction()

# kal_add_plugin(name [HIDDEN] SOURCES … DEPENDS … [DIRECTORY dir])
# A module that the host loads; it exports the two entry points and nothing else.
function(kal_add_plugin name)
  cmake_parse_arguments(arg "HIDDEN" "DIRECTORY" "SOURCES;DEPENDS" ${ARGN})
  add_library(${name} MODULE ${arg_SOURCES})
  set(script "${PROJECT_SOURCE_DIR}/cmake/plugin.map")
  target_link_libraries(${name} PRIVATE ${arg_DEPENDS} kal_warnings)
  target_link_options(${name} PRIVATE "LINKER:--version-script=${script}")
  set_target_properties(${name} PROPERTIES LINK_DEPENDS "${script}")
  if(arg_DIRECTORY)
    set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${arg_DIRECTORY}")
  endif()
  kal_use_qt(${name})
  kal_use_qt_header(${name} "${arg_HIDDEN}")
endfunction()

# The precompiled header with Qt in it that fits the visibility of the target's symbols, which is set here.
function(kal_use_qt_header target hidden)
  if(hidden)
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    target_precompile_headers(${target} REUSE_FROM kal_hidden_qt_header)
  else()
    target_precompile_headers(${target} REUSE_FROM kal_qt_header)
  endif()
endfunction()

# kal_add_test(area name [SOURCES …] [DEPENDS …] [LABELS …])
# A QtTest program from tst_<name>.cpp, where the name may begin with a folder (room/Name is room/tst_Name.cpp). Its target
# is tst_<area>_<room>_<Name>, the test is called area/room/Name. It is run without a display, in the C.UTF-8 locale and with
# folders of its own.
# Under a sanitizer, too, a request for more memory than there is gives null, so that tests see what users would.
# A test that hangs is ended after a quarter of an hour, which no test needs on however slow a machine.
# Tests with the label toolkit or threads are also built by the target thread_tests and run under the thread sanitizer.
function(kal_add_test area name)
  cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS;LABELS" ${ARGN})
  cmake_path(GET name FILENAME class)
  cmake_path(GET name PARENT_PATH room)
  kal_test_target(${area} ${name} target)
  set(flavour widgets)
  if("toolkit" IN_LIST arg_LABELS)
    set(flavour core)
  elseif("kal_orvane_extender_base_objects" IN_LIST arg_DEPENDS)
    set(flavour editors)
  endif()
  cmake_path(APPEND room "tst_${class}.cpp" OUTPUT_VARIABLE source)
  cmake_path(APPEND CMAKE_CURRENT_BINARY_DIR "${room}" OUTPUT_VARIABLE moc_folder)
  set(moc_file "${moc_folder}/tst_${class}.moc")
  file(MAKE_DIRECTORY "${moc_folder}")
  add_executable(${target} ${source} "${moc_file}" ${arg_SOURCES})
  # Called straight away: CMake's automatic run adds two commands and an empty source to each of the many programs.
  qt_generate_moc(${source} "${moc_file}" TARGET ${target})
  target_link_libraries(${target} PRIVATE ${arg_DEPENDS})
  kal_use_test_header(${target} ${flavour})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests" "${moc_folder}")
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  if("toolkit" IN_LIST arg_LABELS OR "threads" IN_LIST arg_LABELS)
    set_property(GLOBAL APPEND PROPERTY KAL_THREAD_TESTS ${target})
  endif()
  add_test(NAME ${area}/${name} COMMAND ${target})
  set(home "${PROJECT_BINARY_DIR}/tests/home/${target}")
  file(MAKE_DIRECTORY "${home}/runtime")
  file(CHMOD "${home}/runtime" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set_tests_properties(
    ${area}/${name}
    PROPERTIES TIMEOUT
               900
               LABELS
               "${area};${arg_LABELS}"
               ENVIRONMENT
               "QTEST_FUNCTION_TIMEOUT=900000;QT_LOGGING_RULES=;QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_STATE_HOME=${home}/state;XDG_CACHE_HOME=${home}/cache;XDG_RUNTIME_DIR=${home}/runtime;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0;ASAN_OPTIONS=allocator_may_return_null=1;TSAN_OPTIONS=allocator_may_return_null=1:suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.supp"
  )
endfunction()

# The target of a test, from its area and its name.
function(kal_test_target area name result)
  string(REPLACE "/" "_" target "tst_${area}_${name}")
  set(${result} "${target}" PARENT_SCOPE)
endfunction()

# The test runs the real import helper, and finds the models of the tests.
function(kal_use_import_helper target)
  add_dependencies(${target} orvane-import)
  target_compile_definitions(
    ${target}
    PRIVATE ORVANE_IMPORT_PROGRAM="$<TARGET_FILE:orvane-import>"
            ORVANE_TEST_MODELS="${PROJECT_SOURCE_DIR}/tests/import/models" ORVANE_SOURCES="${PROJECT_SOURCE_DIR}")
endfunction()

# Runs a test a second time in a build with the address sanitizer: memory that was given back is given out again at once,
# as it is outside of tests. The usual run keeps such memory back, which shows every access to it.
function(kal_also_test_without_quarantine area name)
  if(NOT KAL_SANITIZE MATCHES "address")
    return()
  endif()
  set(again ${area}/${name}WithoutQuarantine)
  kal_test_target(${area} ${name} target)
  add_test(NAME ${again} COMMAND ${target})
  foreach(property TIMEOUT LABELS ENVIRONMENT)
    get_test_property(${area}/${name} ${property} value)
    string(REPLACE "ASAN_OPTIONS=" "ASAN_OPTIONS=quarantine_size_mb=0:thread_local_quarantine_size_kb=0:" value "${value}")
    set_tests_properties(${again} PROPERTIES ${property} "${value}")
  endforeach()
endfunction()

# The precompiled header of the tests, made once for those that do not know widgets, once for those that do and once for
# those of the editors, which all show one in a tool: QtTest and the field classes are most of what compiling a test
# costs. It also makes every test as patient as tests/Patience.h says. It is made for a program, since a library is
# compiled with other flags.
function(kal_use_test_header target flavour)
  set(carrier kal_test_header_${flavour})
  if(NOT TARGET ${carrier})
    file(GENERATE OUTPUT "${PROJECT_BINARY_DIR}/tests/${carrier}.cpp" CONTENT "int main() {}\n")
    add_executable(${carrier} "${PROJECT_BINARY_DIR}/tests/${carrier}.cpp")
    kal_set_test_options(${carrier} ${flavour})
    target_precompile_headers(${carrier} PRIVATE <QSignalSpy> <QTemporaryDir> <QTest>
                                                  "${PROJECT_SOURCE_DIR}/tests/Patience.h")
    if(flavour STREQUAL "editors")
      target_link_libraries(${carrier} PRIVATE kal_orvane_extender_base_objects)
      target_precompile_headers(${carrier} PRIVATE "${PROJECT_SOURCE_DIR}/tests/plugin/EditorHarness.h")
    endif()
    set_target_properties(${carrier} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  endif()
  kal_set_test_options(${target} ${flavour})
  target_precompile_headers(${target} REUSE_FROM ${carrier})
endfunction()

# What a test runs is optimised; the test itself needn't be.
function(kal_compile_as_test target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O0>)
endfunction()

function(kal_set_test_options target flavour)
  target_link_libraries(${target} PRIVATE Qt6::Test $<$<NOT:$<STREQUAL:${flavour},core>>:Qt6::Widgets> kal_warnings
                                          kal_qt_rules)
  kal_compile_as_test(${target})
endfunction()

# Qt's code generators.
function(kal_use_qt name)
  set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_link_libraries(${name} PRIVATE kal_qt_rules)
endfunction()
