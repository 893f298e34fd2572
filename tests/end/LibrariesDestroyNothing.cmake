# Fails for each object file that has something destroyed at the end of a thread or of the process.

# Qt's resource compiler takes the translations away again, which applications load at their start.
list(FILTER OBJECTS EXCLUDE REGEX "/qrc_")
execute_process(COMMAND ${NM} --undefined-only --print-file-name ${OBJECTS}
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]*__cxa_(thread_)?atexit" destroyed "${symbols}")
if(destroyed)
    list(JOIN destroyed "\n" lines)
    message(FATAL_ERROR "These object files register a destructor:\n${lines}")
endif()
