# Installs the project, moves the tree, and builds and runs an application against what it finds there.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output)
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD_DIRECTORY} --prefix ${SCRATCH}/installed)
file(RENAME ${SCRATCH}/installed ${SCRATCH}/moved)
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${SCRATCH}/build -G Ninja
    -DCMAKE_PREFIX_PATH=${SCRATCH}/moved -DPxPlatform_DIR=${PLATFORM} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)

# Without a word from the environment the catalogue is found beside the library; a platform of its own is elsewhere.
set(environment --unset=PX_RESOURCE_DIRS --unset=PX_USER_DEFAULTS_DIR)
if(PLATFORM)
    list(APPEND environment PX_RESOURCE_DIRS=${SCRATCH}/moved/share/PxProductProperties)
endif()
run(${CMAKE_COMMAND} -E env ${environment} ${SCRATCH}/moved/bin/pxcatalogue list)
run(${CMAKE_COMMAND} -E env ${environment} ${SCRATCH}/build/spine)
if(NOT output MATCHES "^Spine: [0-9.]+ x [0-9.]+ mm\n$")
    message(FATAL_ERROR "The example answered: ${output}")
endif()
foreach(file man/man1/pxcatalogue.1 bash-completion/completions/pxcatalogue zsh/site-functions/_pxcatalogue
        fish/vendor_completions.d/pxcatalogue.fish)
    if(NOT EXISTS ${SCRATCH}/moved/share/${file})
        message(FATAL_ERROR "share/${file} is not installed")
    endif()
endforeach()
file(GLOB_RECURSE packages ${SCRATCH}/moved/*.cmake)
foreach(package IN LISTS packages)
    file(STRINGS ${package} absolute REGEX "${SCRATCH}|${BUILD_DIRECTORY}")
    if(absolute)
        message(FATAL_ERROR "${package} names a path of this machine: ${absolute}")
    endif()
endforeach()
file(REMOVE_RECURSE ${SCRATCH})
