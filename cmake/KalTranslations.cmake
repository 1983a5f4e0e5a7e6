# kal_add_translations(target languages…)
# Compiles translations/orvane_<language>.ts, and adds Qt's own texts in these languages, to the resources `translations` of
# a library, in :/orvane/translations. script/translate updates the .ts files.

find_program(KAL_LRELEASE lrelease HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}"
                                         "${QT6_INSTALL_PREFIX}/lib/qt6/bin" REQUIRED)
find_path(KAL_QT_TRANSLATIONS qtbase_de.qm HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}"
                                                 "${QT6_INSTALL_PREFIX}/share/qt6/translations" REQUIRED)

function(kal_add_translations target)
  set(folder "${PROJECT_BINARY_DIR}/translations")
  set(compiled "")
  set(lines "")
  foreach(language IN LISTS ARGN)
    set(source "${PROJECT_SOURCE_DIR}/translations/orvane_${language}.ts")
    set(output "${folder}/orvane_${language}.qm")
    add_custom_command(
      OUTPUT "${output}"
      COMMAND "${KAL_LRELEASE}" -silent "${source}" -qm "${output}"
      DEPENDS "${source}"
      COMMENT "Compiling the translation orvane_${language}.ts"
      VERBATIM)
    list(APPEND compiled "${output}")
    string(APPEND lines "<file alias=\"orvane_${language}.qm\">${output}</file>\n")
    set(qt_texts "${KAL_QT_TRANSLATIONS}/qtbase_${language}.qm")
    if(EXISTS "${qt_texts}")
      string(APPEND lines "<file alias=\"qtbase_${language}.qm\">${qt_texts}</file>\n")
    endif()
  endforeach()
  set(list "${folder}/translations.qrc")
  file(CONFIGURE OUTPUT "${list}" @ONLY
       CONTENT "<RCC>\n<qresource prefix=\"/orvane/translations\">\n${lines}</qresource>\n</RCC>\n")
  set(resources "${folder}/translations.cpp")
  add_custom_command(
    OUTPUT "${resources}"
    COMMAND Qt6::rcc --name translations --output "${resources}" "${list}"
    DEPENDS "${list}" ${compiled}
    VERBATIM)
  target_sources(${target} PRIVATE "${resources}")
  set_source_files_properties("${resources}" PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
