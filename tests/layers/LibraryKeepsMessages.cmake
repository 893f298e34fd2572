# Fails for each line of the library that logs past PxMessage.h: such a message could not be kept. qFatal() ends the process.

file(GLOB_RECURSE files RELATIVE ${SOURCES} ${SOURCES}/*.h ${SOURCES}/*.cpp)
list(REMOVE_ITEM files PxTemplateClasses/PxMessage.h)
foreach(file IN LISTS files)
    file(STRINGS ${SOURCES}/${file} lines REGEX "(^|[^A-Za-z])(qC?(Debug|Info|Warning|Critical)|QMessageLogger( [a-z]+)?|qt_message_output) *\\(")
    foreach(line IN LISTS lines)
        message(SEND_ERROR "${file} logs with Qt's own macros: ${line}")
    endforeach()
endforeach()
