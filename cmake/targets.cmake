# Helpers for the rooms. Sources are found by folder, so that a new item needs no line here or in a CMakeLists.txt.

# Without them ccache can't tell what a precompiled header holds.
set(VANTELLE_PRECOMPILED_OPTIONS -fpch-preprocess)
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    set(VANTELLE_PRECOMPILED_OPTIONS "SHELL:-Xclang -fno-pch-timestamp")
    # CMake's own also names the header, by a path that ccache doesn't know for one and takes for another in each tree.
    set(CMAKE_CXX_COMPILE_OPTIONS_USE_PCH -Xclang -include-pch -Xclang <PCH_FILE>)
endif()

# vantelle_precompiled_header(KIND HEADER [libraries...]): the precompiled header KIND of cmake/precompiled/HEADER, with the
# options of the current folder. Only builds that look for faults have such, as the sanitized one and the fuzzers': what
# people get is built without, so that a source which doesn't include what it uses fails there.
function(vantelle_precompiled_header kind header)
    if(NOT VANTELLE_PRECOMPILED)
        return()
    endif()
    set(target vantelle-precompiled-${kind})
    add_library(${target} STATIC ${PROJECT_SOURCE_DIR}/cmake/precompiled/nothing.cpp)
    target_link_libraries(${target} PUBLIC vantelle_options ${ARGN})
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled/${header})
    target_compile_options(${target} PUBLIC ${VANTELLE_PRECOMPILED_OPTIONS})
    if(CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # A header that clang precompiled names the files of its own tree, so that those of two trees differ: ccache goes by
        # what it was made of instead.
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER ${PROJECT_SOURCE_DIR}/cmake/precompile)
    endif()
    if(ARGN MATCHES "Qt6")
        vantelle_qt(${target})
    endif()
endfunction()

# vantelle_qt(TARGET): Qt would have "slots" and "emit" mean something everywhere.
function(vantelle_qt target)
    target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS)
endfunction()

# vantelle_precompiled(TARGET KIND): TARGET takes its standard headers from that of this KIND, or of KIND-qt where it stands
# on Qt: that is position-independent code, which can't take another's header.
function(vantelle_precompiled target kind)
    get_target_property(libraries ${target} LINK_LIBRARIES)
    if(libraries MATCHES "qt|Qt")
        string(APPEND kind -qt)
    endif()
    if(VANTELLE_PRECOMPILED AND TARGET vantelle-precompiled-${kind} AND NOT libraries MATCHES "app")
        target_precompile_headers(${target} REUSE_FROM vantelle-precompiled-${kind})
        target_compile_options(${target} PRIVATE ${VANTELLE_PRECOMPILED_OPTIONS})
    endif()
endfunction()

# vantelle_room(NAME [libraries it stands on...]): a static library of the .cpp files of the current folder.
function(vantelle_room name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC vantelle_options ${ARGN})
    vantelle_precompiled(${name} rooms)
endfunction()

# vantelle_program(NAME DESCRIPTION): a program that users get, with its version in what Windows tells of it. A release is
# stripped; its symbols stand beside it, as NAME.debug, where a debugger finds them.
function(vantelle_program name description)
    if(WIN32)
        string(REPLACE "." "," numbers ${PROJECT_VERSION})
        configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}-version.rc @ONLY)
        target_sources(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${name}-version.rc)
    endif()
    if(NOT CMAKE_BUILD_TYPE STREQUAL "Release")
        return()
    endif()
    if(MINGW)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/terminate.cpp)
    endif()
    set(program $<TARGET_FILE:${name}>)
    # On a program for Windows these tools put the time of day, which would make each build another.
    set(timeless ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0)
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND ${timeless} ${CMAKE_OBJCOPY} --only-keep-debug ${program} ${program}.debug
        COMMAND ${timeless} ${CMAKE_STRIP} ${program}
        COMMAND ${timeless} ${CMAKE_OBJCOPY} --add-gnu-debuglink=${program}.debug ${program}
        VERBATIM)
endfunction()

# vantelle_manual(FILE): a page of the manual, installed as systems keep them: compressed, the same bytes each time.
function(vantelle_manual file)
    cmake_path(GET file FILENAME name)
    include(GNUInstallDirs)
    install(CODE "execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${CMAKE_BINARY_DIR}/${name}.gz COMMAND_ERROR_IS_FATAL ANY)")
    install(FILES ${CMAKE_BINARY_DIR}/${name}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endfunction()

# vantelle_test(NAME FOLDER [libraries...]): one GoogleTest program of the .cpp files in tests/FOLDER.
function(vantelle_test name folder)
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
    get_property(shared GLOBAL PROPERTY VANTELLE_SHARED)
    list(REMOVE_ITEM sources ${shared} "")
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE vantelle_options gtest gtest_main ${ARGN})
    vantelle_precompiled(${name} tests)
    # Only for the sources that use them: the others compile the same wherever the tree stands, and ccache knows them.
    foreach(source ${sources})
        file(STRINGS ${source} uses REGEX "VANTELLE_(SOURCE|BINARY)_DIR" LIMIT_COUNT 1)
        if(uses)
            set_property(SOURCE ${source} APPEND PROPERTY COMPILE_DEFINITIONS
                VANTELLE_SOURCE_DIR="${PROJECT_SOURCE_DIR}" VANTELLE_BINARY_DIR="${CMAKE_BINARY_DIR}")
        endif()
    endforeach()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

# vantelle_long(TEST...): tests that take their time, by trying much. A quick run goes without; a whole one begins with
# them, so that none is left alone at the end.
function(vantelle_long)
    set_tests_properties(${ARGN} PROPERTIES LABELS long COST 1000)
endfunction()

# vantelle_long_part(TEST FILTER): those tests of a program are a long test of their own, NAME_long_test of NAME_test.
function(vantelle_long_part test filter)
    set_tests_properties(${test} PROPERTIES ENVIRONMENT "GTEST_FILTER=-${filter}")
    string(REPLACE _test _long_test part ${test})
    add_test(NAME ${part} COMMAND ${test} --gtest_filter=${filter})
    # A filter that no test answers to any more would pass.
    set_tests_properties(${part} PROPERTIES TIMEOUT 600 FAIL_REGULAR_EXPRESSION "Running 0 tests")
    vantelle_long(${part})
endfunction()

# vantelle_shared(NAME LIBRARIES FILE...): what stands in tests/FILE.cpp as a static library, for the test programs that need it
# besides the one of its folder. Those link it by name.
function(vantelle_shared name libraries)
    list(TRANSFORM ARGN PREPEND ${PROJECT_SOURCE_DIR}/tests/ OUTPUT_VARIABLE sources)
    list(TRANSFORM sources APPEND .cpp)
    add_library(${name} STATIC EXCLUDE_FROM_ALL ${sources})
    target_link_libraries(${name} PUBLIC vantelle_options gtest ${libraries})
    vantelle_precompiled(${name} tests)
    set_property(GLOBAL APPEND PROPERTY VANTELLE_SHARED ${sources})
endfunction()

# vantelle_link_model(TARGET): links a program that drives the model as a whole (a fuzzer, the benchmarks) to each of
# its rooms that exists.
function(vantelle_link_model target)
    target_link_libraries(${target} PRIVATE vantelle_options)
    foreach(room vantelle-edid vantelle-displayid vantelle-cta vantelle-timing vantelle-core)
        if(TARGET ${room})
            target_link_libraries(${target} PRIVATE ${room})
        endif()
    endforeach()
endfunction()

set(VANTELLE_HEADERS /usr/include CACHE PATH "Where the libraries of headers stand")

# vantelle_header_library(NAME PATH): the target vantelle_NAME for a library of headers that a package of Debian's put
# at PATH. It is seen through a folder that holds nothing but a link to it, so that a cross build meets no other header
# of the host. Where there is no such package, as on Windows, the compiler finds the library by itself.
function(vantelle_header_library name path)
    add_library(vantelle_${name} INTERFACE)
    if(NOT EXISTS ${path})
        return()
    endif()
    set(folder ${CMAKE_BINARY_DIR}/headers/${name})
    cmake_path(GET path FILENAME link)
    file(MAKE_DIRECTORY ${folder})
    file(CREATE_LINK ${path} ${folder}/${link} SYMBOLIC)
    target_include_directories(vantelle_${name} SYSTEM INTERFACE ${folder})
endfunction()
