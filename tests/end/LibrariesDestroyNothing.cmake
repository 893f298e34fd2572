# Fails for each object file that has something destroyed at the end of a thread or of the process.

# Qt's resource compiler takes the translations away again, which applications load at their start.
list(FILTER OBJECTS EXCLUDE REGEX "/qrc_")
foreach(object IN LISTS OBJECTS)
    execute_process(COMMAND ${NM} --undefined-only ${object} OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    if(symbols MATCHES "__cxa_(thread_)?atexit")
        message(SEND_ERROR "${object} registers a destructor")
    endif()
endforeach()
