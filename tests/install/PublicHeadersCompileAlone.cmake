# Fails for each source that does not include its own header first, and if a public header that has no source does not compile.

foreach(source IN LISTS SOURCES)
    cmake_path(GET source STEM name)
    file(STRINGS ${source} first REGEX "^ *#" LIMIT_COUNT 1)
    if(NOT first MATCHES "^#include \"(.*/)?${name}\\.h\"$")
        message(SEND_ERROR "${source} begins with ${first}, and not with its own header")
    endif()
endforeach()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIRECTORY} --target PxPublicHeaders -j 2 COMMAND_ERROR_IS_FATAL ANY)
