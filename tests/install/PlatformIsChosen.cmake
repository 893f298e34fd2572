# Configures the project for platforms that it does not know, or that bring more or less than others.

function(configure)
    file(REMOVE_RECURSE ${SCRATCH}/build)
    execute_process(COMMAND ${CMAKE_COMMAND} -S ${PROJECT} -B ${SCRATCH}/build -G Ninja
        -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DPX_BUILD_TESTS=OFF ${ARGN}
        RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE error)
    set(result "${result}" PARENT_SCOPE)
    set(error "${error}" PARENT_SCOPE)
endfunction()

configure(-DPX_PLATFORM=sytsem)
if(result EQUAL 0 OR NOT error MATCHES "PX_PLATFORM is \"sytsem\".*\"bundled\".*\"system\"")
    message(SEND_ERROR "An unknown platform is not refused: ${error}")
endif()

foreach(brought "" TemplateClasses)
    file(WRITE ${SCRATCH}/package/PxPlatformConfig.cmake "
        foreach(name Core XML ProductBase)
            add_library(Px::\${name} SHARED IMPORTED)
            set_target_properties(Px::\${name} PROPERTIES IMPORTED_LOCATION /elsewhere/lib\${name}.so)
        endforeach()
        foreach(name ${brought})
            add_library(Px::\${name} INTERFACE IMPORTED)
        endforeach()")
    configure(-DPX_PLATFORM=system -DPxPlatform_DIR=${SCRATCH}/package)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "With a platform that brings \"${brought}\": ${error}")
    endif()
    file(GLOB_RECURSE installs ${SCRATCH}/build/src/cmake_install.cmake
        ${SCRATCH}/build/src/PxTemplateClasses/cmake_install.cmake)
    set(headers "")
    foreach(install IN LISTS installs)
        file(STRINGS ${install} found REGEX "/PxEnumWrapper.h")
        string(APPEND headers "${found}")
    endforeach()
    if(brought AND headers OR NOT brought AND NOT headers)
        message(SEND_ERROR "With a platform that brings \"${brought}\" these headers are installed: ${headers}")
    endif()
endforeach()
file(REMOVE_RECURSE ${SCRATCH})
