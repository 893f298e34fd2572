# The handler of the example takes the library's warnings, drops what explains them, and leaves other messages to Qt.

file(REMOVE_RECURSE ${SCRATCH})
file(WRITE ${SCRATCH}/products/broken.xml "<product")
execute_process(COMMAND ${CMAKE_COMMAND} -E env PX_RESOURCE_DIRS=${SCRATCH} ${PROGRAM}
    OUTPUT_VARIABLE routed ERROR_VARIABLE others COMMAND_ERROR_IS_FATAL ANY)
if(NOT routed MATCHES "^catalogue: PxProductTypeDescriptionReader::readFile could not open \"[^\n]*broken.xml\"\n(catalogue: [^\n]*\n)+$"
        OR routed MATCHES "the reason")
    message(FATAL_ERROR "The handler wrote: ${routed}")
endif()
if(NOT others MATCHES "^The catalogue has been read.\n$")
    message(FATAL_ERROR "Beside the handler was written: ${others}")
endif()
