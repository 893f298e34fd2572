# Installs the project, moves the tree, builds and runs applications against what they find there, and removes it again.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output)
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
set(moved ${SCRATCH}/moved)
run(${CMAKE_COMMAND} --install ${BUILD_DIRECTORY} --prefix ${SCRATCH}/installed)
file(RENAME ${SCRATCH}/installed ${moved})

# What an application must name: the sample is installed, but nobody gets it unasked.
set(environment ${CMAKE_COMMAND} -E env --unset=PX_RESOURCE_DIRS --unset=PX_USER_DEFAULTS_DIR)
execute_process(COMMAND ${environment} ${moved}/bin/pxcatalogue list RESULT_VARIABLE result ERROR_VARIABLE error)
if(result EQUAL 0 OR NOT error MATCHES "does not exist: name the resource directory with --resources")
    message(SEND_ERROR "Without a catalogue pxcatalogue says: ${error}")
endif()
run(${environment} ${moved}/bin/pxcatalogue list --resources ${moved}/share/PxProductProperties/sample)
# A catalogue beside the library is found without a word from the environment; a platform of its own is elsewhere.
if(PLATFORM)
    list(APPEND environment PX_RESOURCE_DIRS=${moved}/share/PxProductProperties/sample)
else()
    file(COPY ${moved}/share/PxProductProperties/sample/ DESTINATION ${moved}/share/PxProductProperties)
endif()
run(${environment} ${moved}/bin/pxcatalogue list)

set(options -G Ninja -DCMAKE_PREFIX_PATH=${moved} -DPxPlatform_DIR=${PLATFORM}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} -S ${EXAMPLE} -B ${SCRATCH}/example ${options})
run(${CMAKE_COMMAND} --build ${SCRATCH}/example)
run(${environment} ${SCRATCH}/example/PxSpine)
if(NOT output MATCHES "^Spine: [0-9.]+ x [0-9.]+ mm\n$")
    message(FATAL_ERROR "The example answered: ${output}")
endif()
foreach(file man/man1/pxcatalogue.1 bash-completion/completions/pxcatalogue zsh/site-functions/_pxcatalogue
        fish/vendor_completions.d/pxcatalogue.fish)
    if(NOT EXISTS ${moved}/share/${file})
        message(FATAL_ERROR "share/${file} is not installed")
    endif()
endforeach()

file(GLOB_RECURSE headers RELATIVE ${moved}/include/PxProductProperties ${moved}/include/PxProductProperties/*.h)
list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>\n")
string(CONCAT headers ${headers})
file(WRITE ${SCRATCH}/headers.h "${headers}")
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/consumer ${options} -DTAKES=package
    "-DHEADERS=\"${SCRATCH}/headers.h\"")
run(${CMAKE_COMMAND} --build ${SCRATCH}/consumer)
run(${environment} ${SCRATCH}/consumer/Consumer)

file(GLOB_RECURSE found ${moved}/*/PxProductProperties.pc)
if(found AND PKG_CONFIG)
    cmake_path(GET found PARENT_PATH found)
    set(ENV{PKG_CONFIG_PATH} ${found})
    run(${PKG_CONFIG} --cflags --libs PxProductProperties)
    separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${output}")
    run(${PKG_CONFIG} --variable=libdir PxProductProperties)
    string(STRIP "${output}" libraries)
    run(${CXX_COMPILER} -std=c++17 -fPIC -Wall -Wextra -Werror "-DHEADERS=\"${SCRATCH}/headers.h\"" ${CONSUMER}/main.cpp
        -o ${SCRATCH}/pkg-config ${flags} -Wl,-rpath,${libraries})
    run(${environment} ${SCRATCH}/pkg-config)
endif()

file(GLOB_RECURSE packages ${moved}/*.cmake ${moved}/*.pc)
foreach(package IN LISTS packages)
    file(STRINGS ${package} absolute REGEX "${SCRATCH}|${BUILD_DIRECTORY}")
    if(absolute)
        message(FATAL_ERROR "${package} names a path of this machine: ${absolute}")
    endif()
endforeach()

file(RENAME ${moved} ${SCRATCH}/installed)
file(STRINGS ${BUILD_DIRECTORY}/install_manifest.txt ours)
file(GLOB_RECURSE others ${SCRATCH}/installed/*)
list(REMOVE_ITEM others ${ours})
run(${CMAKE_COMMAND} --build ${BUILD_DIRECTORY} --target uninstall)
file(GLOB_RECURSE left ${SCRATCH}/installed/*)
if(NOT left STREQUAL others OR EXISTS ${SCRATCH}/installed/include/PxProductProperties)
    message(SEND_ERROR "Without the installed files there shall be ${others}, but there are ${left}")
endif()
# What cannot be removed, as this folder, stays known.
file(WRITE ${SCRATCH}/build/install_manifest.txt ${SCRATCH}/build)
execute_process(COMMAND ${CMAKE_COMMAND} -DBINARY_DIR=${SCRATCH}/build -DPROJECT=PxProductProperties -P ${UNINSTALL}
    RESULT_VARIABLE result ERROR_VARIABLE error)
if(result EQUAL 0 OR NOT error MATCHES "${SCRATCH}/build" OR NOT EXISTS ${SCRATCH}/build/install_manifest.txt)
    message(SEND_ERROR "What cannot be removed: ${error}")
endif()
file(REMOVE_RECURSE ${SCRATCH})
