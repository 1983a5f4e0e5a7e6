# What every target of the project shares: the language level, where artefacts go, the warnings and the sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(KAL_CCACHE ccache)
if(KAL_CCACHE)
  # Precompiled headers are cacheable only when their timestamps are left out of the comparison.
  set(CMAKE_CXX_COMPILER_LAUNCHER env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
                                  "${KAL_CCACHE}")
endif()

# Linking with lld takes a sixth of the time; without it the compiler's own linker does. Several run at once anyway.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=lld KAL_HAS_LLD)
if(KAL_HAS_LLD)
  add_link_options(-fuse-ld=lld LINKER:--threads=1)
endif()

# The compiler looks for its own garbage once it holds a gigabyte: earlier costs time, and memory there is enough of.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(--param=ggc-min-heapsize=1000000)
endif()

# The compiler's warnings, for our own sources alone.
add_library(kal_warnings INTERFACE)
target_compile_options(
  kal_warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast
            -Wcast-qual -Wcast-align -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2 -Wimplicit-fallthrough -Wundef
            -Wextra-semi -Wsuggest-override
            $<$<CXX_COMPILER_ID:GNU>:-Wmissing-declarations
            -Wduplicated-cond
            -Wduplicated-branches
            -Wlogical-op
            -Wuseless-cast>
            # GCC 12 sees overlaps where strings are joined (GCC bug 105651).
            $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
option(KAL_WARNINGS_AS_ERRORS "Stop the build at the first warning" OFF)
if(KAL_WARNINGS_AS_ERRORS)
  target_compile_options(kal_warnings INTERFACE -Werror)
endif()

# KAL_SANITIZE names the sanitizers of the whole tree, as -fsanitize= takes them.
set(KAL_SANITIZE "" CACHE STRING "Sanitizers to build with, for instance address,undefined")
if(KAL_SANITIZE)
  add_compile_options(-fsanitize=${KAL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${KAL_SANITIZE})
endif()

# Counts which lines and branches a run takes; script/coverage shows them. Counters of several threads are exact.
option(KAL_COVERAGE "Count the branches that a run takes" OFF)
if(KAL_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic -fprofile-abs-path)
  add_link_options(--coverage)
endif()

# What the Qt code of the project is compiled with.
add_library(kal_qt_rules INTERFACE)
target_compile_definitions(
  kal_qt_rules
  INTERFACE QT_NO_KEYWORDS
            QT_NO_FOREACH
            QT_NO_CAST_FROM_ASCII
            QT_NO_CAST_TO_ASCII
            QT_NO_CAST_FROM_BYTEARRAY
            QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
            QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The common precompiled header of the libraries with Qt code, made once. It names what many of them include, rather than
# all of Qt: what a header holds costs time in each source that uses it.
add_library(kal_qt_header OBJECT "${PROJECT_SOURCE_DIR}/cmake/QtHeader.cpp")
target_link_libraries(kal_qt_header PRIVATE Qt6::Widgets kal_warnings kal_qt_rules)
target_precompile_headers(kal_qt_header PRIVATE "${PROJECT_SOURCE_DIR}/cmake/QtHeader.h")

# The same for code whose symbols are hidden: clang refuses a precompiled header that was made with another visibility.
add_library(kal_hidden_qt_header OBJECT "${PROJECT_SOURCE_DIR}/cmake/QtHeader.cpp")
target_link_libraries(kal_hidden_qt_header PRIVATE Qt6::Widgets kal_warnings kal_qt_rules)
set_target_properties(kal_hidden_qt_header PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
target_precompile_headers(kal_hidden_qt_header PRIVATE "${PROJECT_SOURCE_DIR}/cmake/QtHeader.h")

# The same for the libraries without Qt.
add_library(kal_std_header OBJECT "${PROJECT_SOURCE_DIR}/cmake/StdHeader.cpp")
target_link_libraries(kal_std_header PRIVATE kal_warnings)
target_precompile_headers(kal_std_header PRIVATE "${PROJECT_SOURCE_DIR}/cmake/StdHeader.h")
