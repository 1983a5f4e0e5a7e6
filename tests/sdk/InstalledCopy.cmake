# Installs the tool into a folder of its own, builds the sample against it as an author would, and tries it; then moves the
# installed copy elsewhere and does the same there.
#
# cmake -D BUILD=<folder of the build> -D FOLDER=<where to work> -D GENERATOR=… -D COMPILER=… -D LAUNCHER=… -D FLAGS=…
#       -D BUILD_TYPE=… -P InstalledCopy.cmake

cmake_policy(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect text)
  if(NOT output MATCHES "${text}")
    message(FATAL_ERROR "the output has no \"${text}\":\n${output}")
  endif()
endfunction()

# Builds the sample against the copy in that folder, outside of the project, and tries it.
function(try_copy prefix)
  set(build "${FOLDER}/build")
  file(REMOVE_RECURSE "${build}" "${FOLDER}/sample")
  file(COPY "${prefix}/share/orvane/examples/plugin/" DESTINATION "${FOLDER}/sample")
  run(${CMAKE_COMMAND} -S "${FOLDER}/sample" -B "${build}" -G "${GENERATOR}" -D "CMAKE_CXX_COMPILER=${COMPILER}" -D
      "CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" -D "CMAKE_CXX_FLAGS=${FLAGS}" -D "CMAKE_BUILD_TYPE=${BUILD_TYPE}" -D
      "CMAKE_PREFIX_PATH=${prefix}")
  run(${CMAKE_COMMAND} --build "${build}")
  set(plugin "${build}/libkal_orvane_extender_sample.so")

  # The harness loads it, uses its controls, undoes, saves, and reads the scene with and without it.
  run("${prefix}/bin/orvane-plugin-test" "${plugin}")
  expect("\"SFHeading\": edited and undone")
  expect("\"Compass\": edited and undone")
  expect("saved, and read again with and without the plug-in")
  # The tool finds its own plug-ins, and takes the new one.
  run("${prefix}/bin/orvane" --plugin "${plugin}" --list-extensions)
  expect("\tDvSFFloatWidget\tSFFloat\tSFFloat\n")
  expect("\tMaterial\tMaterial\n")
  expect("\tCompass Bar\t")
endfunction()

set(prefix "${FOLDER}/first")
set(moved "${FOLDER}/moved elsewhere")
file(REMOVE_RECURSE "${FOLDER}")
run(${CMAKE_COMMAND} --install "${BUILD}" --prefix "${prefix}")
try_copy("${prefix}")
file(RENAME "${prefix}" "${moved}")
try_copy("${moved}")
file(REMOVE_RECURSE "${FOLDER}")
