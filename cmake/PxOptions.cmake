# What is built and installed; README.md has the table. A project that takes this one in gets the library alone.

set(PX_PLATFORM bundled CACHE STRING "Platform libraries: 'bundled' editions or 'system' (find_package(PxPlatform))")
set_property(CACHE PX_PLATFORM PROPERTY STRINGS bundled system)
set(PX_DOCUMENTATION_URL "" CACHE STRING "Where the folder docs is published; default: where it is installed")
option(PX_BUILD_TOOLS "Build pxcatalogue, the command for authors" ${PROJECT_IS_TOP_LEVEL})
option(PX_BUILD_EXAMPLES "Build the examples, one of which needs Qt Widgets" ${PROJECT_IS_TOP_LEVEL})
option(PX_BUILD_TESTS "Build the tests, which run tools and examples and need Qt Test" ${PROJECT_IS_TOP_LEVEL})
option(PX_BUILD_BENCHMARKS "Build the benchmarks, which need Google Benchmark" OFF)
option(PX_BUILD_FUZZERS "Build the fuzzers, which need clang" OFF)
option(PX_TRANSLATIONS "Put the English texts into library and tools, which needs Qt's linguist tools" ON)
option(PX_DRAW_PDF "Let pxcatalogue draw write PDF, which needs libqpdf" ON)
option(PX_INSTALL "Install what is built" ${PROJECT_IS_TOP_LEVEL})
option(PX_INSTALL_SAMPLE "Install the sample catalogue as well" ${PROJECT_IS_TOP_LEVEL})
option(PX_PACKAGES "Let cpack make packages of Debian, one for each install component" OFF)
set(PX_PACKAGE_CONTACT "Maintainers of PxProductProperties <maintainers@pxproductproperties.invalid>" CACHE STRING
    "Who answers for these packages: Name <address>")
option(PX_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)

if(NOT PX_PLATFORM MATCHES "^(bundled|system)$")
    message(FATAL_ERROR "PX_PLATFORM is \"${PX_PLATFORM}\"; it must be \"bundled\" or \"system\".")
endif()
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    message(FATAL_ERROR "BUILD_SHARED_LIBS is OFF, but the library can only be shared: what it reads exists once in a "
        "process. Leave the variable out; a project that needs it for itself sets it to ON around add_subdirectory().")
endif()

if(PX_PACKAGES AND NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    message(FATAL_ERROR "PX_PACKAGES needs CMAKE_INSTALL_PREFIX=/usr, where packages of Debian are installed, and not "
        "\"${CMAKE_INSTALL_PREFIX}\": configure with --preset packages, or call make packages.")
endif()

function(px_require option)
    foreach(needed IN LISTS ARGN)
        if(${option} AND NOT ${needed})
            message(FATAL_ERROR "${option} needs ${needed}: turn this on as well, or ${option} off.")
        endif()
    endforeach()
endfunction()

px_require(PX_BUILD_TOOLS PX_TRANSLATIONS)
px_require(PX_BUILD_FUZZERS PX_BUILD_TOOLS)
px_require(PX_PACKAGES PX_INSTALL)
px_require(PX_BUILD_TESTS PX_BUILD_TOOLS PX_BUILD_EXAMPLES PX_INSTALL PX_INSTALL_SAMPLE)
