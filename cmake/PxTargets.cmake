# What every target of the project shares: the language level, the warnings, the visibility, where it is built
# and installed. A list file names a target, its sources and what it links; the rest is here.

include(GenerateExportHeader)

find_program(PX_CCACHE ccache)
mark_as_advanced(PX_CCACHE)

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH PX_ROOT)

# What is built for others has no path of the machine in it, so that it is the same wherever it is built.
function(px_set_defaults target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        $<$<BOOL:${PX_WARNINGS_AS_ERRORS}>:-Werror>
        "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PX_ROOT}=.;-ffile-prefix-map=${PROJECT_BINARY_DIR}=build>")
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DEPRECATED_WARNINGS
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00 QT_MESSAGELOGCONTEXT)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        EXPORT_COMPILE_COMMANDS ON
        BUILD_RPATH_USE_ORIGIN ON
        UNITY_BUILD OFF # sources have names of their own in unnamed namespaces
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
    if(PX_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER ${PX_CCACHE})
    endif()
endfunction()

# Files for ":/", in the first format of rcc: later ones have the times of the files in them.
macro(px_add_resources variable file)
    qt5_add_resources(${variable} ${file} OPTIONS -format-version 1)
endmacro()

# Headers are file sets, which CMake knows from 3.23 on; for older ones their folder is a property as well.
function(px_install_library target name visibility)
    add_library(Px::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    target_include_directories(${target} ${visibility}
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${PROJECT_NAME}>)
    if(PX_INSTALL)
        install(TARGETS ${target} EXPORT ${PROJECT_NAME}Targets
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Devel
            FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${PROJECT_NAME} COMPONENT Devel)
    endif()
endfunction()

# A shared library that other targets know as Px::<name>; its public headers are found below <base>.
function(px_add_library target name base)
    add_library(${target} SHARED)
    px_set_defaults(${target})
    # Nobody replaces our functions when the program is loaded: calls within a library stay in it.
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    target_compile_features(${target} PUBLIC cxx_std_17)
    generate_export_header(${target}
        BASE_NAME ${target} EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/export/${target}Export.h)
    target_sources(${target} PUBLIC FILE_SET HEADERS
        BASE_DIRS ${base} ${CMAKE_CURRENT_BINARY_DIR}/export
        FILES ${CMAKE_CURRENT_BINARY_DIR}/export/${target}Export.h)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN;${PX_PLATFORM_RPATH}")
    px_install_library(${target} ${name} PUBLIC)
endfunction()

# A program that uses the library as an application would, installed beside it.
function(px_add_program target)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_FULL_BINDIR}
        OUTPUT_VARIABLE libraries)
    add_executable(${target} ${ARGN})
    px_set_defaults(${target})
    target_link_libraries(${target} PRIVATE Px::ProductProperties)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries};${PX_PLATFORM_RPATH}")
    if(PX_INSTALL)
        install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Tools)
    endif()
endfunction()

# The environment of tests: no screen, a locale that every machine has, a time zone, what the sanitizers overlook.
function(px_set_test_environment)
    set_tests_properties(${ARGN} PROPERTIES TIMEOUT 120 ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=;TZ=UTC;PX_THREADS=4;\
LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;\
TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp")
endfunction()

# One test program of the same name as its source; what it links beside the library follows the name.
function(px_add_test name)
    add_executable(${name} ${name}.cpp)
    px_set_defaults(${name})
    # QSKIP() and others of Qt's macros are called without the rest of their arguments, as C++20 allows.
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE PxTestSupport ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    px_set_test_environment(${name})
endfunction()

# One fuzzer of the same name as its source, part of the target PxFuzzers; the preset "asan" instruments all the rest.
function(px_add_fuzzer name)
    add_executable(${name} ${name}.cpp)
    px_set_defaults(${name})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/fuzzers)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    target_link_libraries(${name} PRIVATE PxFuzzSupport Px::ProductProperties)
    add_dependencies(PxFuzzers ${name})
endfunction()
