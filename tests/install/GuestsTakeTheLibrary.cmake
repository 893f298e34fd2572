# Builds and runs an application that has the project in its own build: as a subdirectory, and with FetchContent.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output)
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(refuses pattern)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/refused -G Ninja ${options}
        -DTAKES=subdirectory ${ARGN} RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE error)
    string(REGEX REPLACE "[ \n]+" " " error "${error}")
    if(result EQUAL 0 OR NOT error MATCHES "${pattern}")
        message(SEND_ERROR "${ARGN} is not refused: ${error}")
    endif()
    file(REMOVE_RECURSE ${SCRATCH}/refused)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
set(headers "")
foreach(header IN LISTS HEADERS)
    string(APPEND headers "#include \"${header}\"\n")
endforeach()
file(WRITE ${SCRATCH}/headers.h "${headers}")
set(options -DPROJECT=${PROJECT} -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_BUILD_TYPE=Debug "-DHEADERS=\"${SCRATCH}/headers.h\"")
# The second build finds in the cache what the first one compiled, in a folder of another name.
set(ENV{CCACHE_BASEDIR} ${SCRATCH})
set(ENV{CCACHE_NOHASHDIR} 1)
foreach(way subdirectory FetchContent)
    set(build ${SCRATCH}/${way})
    run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${build} -G Ninja ${options} -DTAKES=${way})
    run(${CMAKE_COMMAND} --build ${build})
    run(${CMAKE_COMMAND} -E env PX_RESOURCE_DIRS=${PROJECT}/data/sample
        ${CMAKE_CTEST_COMMAND} --test-dir ${build} --output-on-failure --no-tests=error)
    if(NOT output MATCHES "100% tests passed, 0 tests failed out of 1\n")
        message(SEND_ERROR "Tests of ours are among those of the application: ${output}")
    endif()
    file(GLOB_RECURSE programs ${build}/bin/* ${build}/*/bin/*)
    run(${CMAKE_COMMAND} --install ${build} --prefix ${build}/installed)
    file(GLOB_RECURSE installed ${build}/installed/*)
    if(programs OR installed)
        message(SEND_ERROR "The application did not ask for these: ${programs} ${installed}")
    endif()
    # Without a catalogue the library says so, and does not answer from the sample.
    execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=PX_RESOURCE_DIRS ${build}/Consumer
        OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(NOT output STREQUAL "0 products\n" OR NOT error MATCHES "\"products\" is missing, searched in")
        message(SEND_ERROR "Without a catalogue: ${output}${error}")
    endif()
endforeach()
# With all of it the names of the targets are still those of the application, and the documents have a folder of their
# own. Wherever the user puts libraries and headers, pkg-config finds them.
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${SCRATCH}/all -G Ninja ${options} -DTAKES=subdirectory -DPX_BUILD_TOOLS=ON
    -DPX_BUILD_EXAMPLES=ON -DPX_BUILD_TESTS=ON -DPX_BUILD_FUZZERS=ON -DPX_INSTALL=ON -DPX_INSTALL_SAMPLE=ON
    -DCMAKE_INSTALL_PREFIX=/opt/px -DCMAKE_INSTALL_LIBDIR=/opt/px/lib64 -DCMAKE_INSTALL_INCLUDEDIR=/opt/headers)
run(${CMAKE_COMMAND} --install ${SCRATCH}/all --prefix ${SCRATCH}/installed --component Documentation)
file(GLOB folders RELATIVE ${SCRATCH}/installed ${SCRATCH}/installed/* ${SCRATCH}/installed/share/doc/*)
if(NOT folders STREQUAL "share;share/doc/PxProductProperties")
    message(SEND_ERROR "The documents are not in a folder of their own: ${folders}")
endif()
file(STRINGS ${SCRATCH}/all/PxProductProperties/PxProductProperties.pc variables REGEX "^[a-z]+=")
if(NOT variables STREQUAL
        "prefix=\${pcfiledir}/../..;libdir=\${prefix}/lib64;includedir=/opt/headers")
    message(SEND_ERROR "pkg-config says: ${variables}")
endif()
refuses("BUILD_SHARED_LIBS is OFF, but the library can only be shared" -DBUILD_SHARED_LIBS=OFF)
refuses("PX_BUILD_TESTS needs PX_BUILD_TOOLS" -DPX_BUILD_TESTS=ON)
refuses("PX_PACKAGES needs CMAKE_INSTALL_PREFIX=/usr" -DPX_PACKAGES=ON -DPX_INSTALL=ON)
file(REMOVE_RECURSE ${SCRATCH})
