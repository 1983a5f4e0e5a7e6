# What `cmake --install` puts in place: the tool (component Runtime), and what plug-ins are built with (Development). All
# paths are relative to the prefix, so that an installed copy works wherever it is moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(libraries kal_meridane_base kal_meridane kal_meridane_query kal_meridane_gl kal_orvane_extender kal_orvane_sdk)
# Those that plug-ins are linked with.
set(plugin_libraries kal_meridane_base kal_meridane kal_orvane_extender kal_orvane_sdk)
set(runtime_libraries kal_meridane_query kal_meridane_gl)
set(plugins kal_orvane_extender_base kal_orvane_extender_nodes)
set(programs orvane orvane-import orvane-plugin-test)
set(include_folder "${CMAKE_INSTALL_INCLUDEDIR}/orvane")
set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/Orvane")
set(plugin_folder "${CMAKE_INSTALL_LIBDIR}/${KAL_PLUGIN_FOLDER}")
set(example_folder "${CMAKE_INSTALL_DATADIR}/orvane/examples")

cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY "${CMAKE_INSTALL_FULL_BINDIR}" OUTPUT_VARIABLE to_libraries)
set_target_properties(${programs} PROPERTIES INSTALL_RPATH "$ORIGIN/${to_libraries}")
set_target_properties(${libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(${plugins} PROPERTIES INSTALL_RPATH "$ORIGIN/../..")
set_target_properties(kal_orvane_sdk PROPERTIES EXPORT_NAME sdk)

install(
  TARGETS ${plugin_libraries}
  EXPORT OrvaneTargets
  LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
  FILE_SET HEADERS DESTINATION "${include_folder}" COMPONENT Development)
install(TARGETS ${runtime_libraries} LIBRARY COMPONENT Runtime NAMELINK_SKIP)
install(TARGETS orvane orvane-import RUNTIME COMPONENT Runtime)
install(TARGETS orvane-plugin-test RUNTIME COMPONENT Development)
install(TARGETS ${plugins} LIBRARY DESTINATION "${plugin_folder}" COMPONENT Runtime)

set(generated "${PROJECT_BINARY_DIR}/generated")
install(FILES "${generated}/orvane/extender/InterfaceHash.h" DESTINATION "${include_folder}/orvane/extender"
        COMPONENT Development)
install(
  CODE "execute_process(
    COMMAND \"${CMAKE_COMMAND}\" -D \"ROOT=${PROJECT_SOURCE_DIR}\" -D \"HEADERS=${generated}/interface-headers.txt\"
            -D \"FOLDER=\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${include_folder}\"
            -P \"${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake\"
    COMMAND_ERROR_IS_FATAL ANY)"
  COMPONENT Development)

set(KAL_QT_VERSION 6.4)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/OrvaneConfig.cmake.in" "${PROJECT_BINARY_DIR}/OrvaneConfig.cmake"
                              INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(EXPORT OrvaneTargets NAMESPACE Orvane:: DESTINATION "${package_folder}" COMPONENT Development)
install(FILES "${PROJECT_BINARY_DIR}/OrvaneConfig.cmake" "${PROJECT_BINARY_DIR}/OrvaneConfigVersion.cmake"
              "${PROJECT_SOURCE_DIR}/cmake/OrvanePlugin.cmake" "${PROJECT_SOURCE_DIR}/cmake/plugin.map"
        DESTINATION "${package_folder}" COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples/plugin" DESTINATION "${example_folder}" COMPONENT Development)
install(FILES "${PROJECT_SOURCE_DIR}/examples/robot.mrd" "${PROJECT_SOURCE_DIR}/examples/gallery.mrd"
        DESTINATION "${example_folder}" COMPONENT Runtime)
