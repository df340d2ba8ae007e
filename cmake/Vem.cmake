# SPDX-License-Identifier: GPL-2.0-or-later
# What every target of the house shares: language level, warnings, toolkit switches, sanitizers,
# and the two functions by which a folder declares its library and its tests.

option(VEM_TESTS "Build the tests" ON)
option(VEM_FUZZ "Build the fuzz targets, with clang" OFF)
option(VEM_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ON)
option(VEM_PCH "Compile the toolkit's headers once for all sources: thrice as fast" OFF)
set(VEM_LINKER "" CACHE STRING "Linker to use where the compiler finds it, as -fuse-ld= takes it")
set(VEM_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Widgets LinguistTools)
if(VEM_TESTS)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
endif()

# dnf and rpm live in the system's interpreter; another Python may stand earlier on PATH.
set(Python3_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "The interpreter that has dnf and rpm")
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter Development.Embed)

# Where the running build finds its helper script and pictures without being installed.
set(VEM_SHARE_DIR "${CMAKE_BINARY_DIR}/share/vem")

add_library(vem_options INTERFACE)
target_compile_definitions(vem_options INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS)
target_compile_options(vem_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor)
if(VEM_WARNINGS_AS_ERRORS)
    target_compile_options(vem_options INTERFACE -Werror)
endif()
# For tests under the sanitizers. The interpreter and the toolkit keep memory to the end of the process, which
# would count as leaks; libdnf deletes what libsolv has allocated by malloc, which is their affair.
set(VEM_SANITIZER_ENVIRONMENT
    "ASAN_OPTIONS=detect_leaks=0:alloc_dealloc_mismatch=0"
    "UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
if(VEM_SANITIZE)
    target_compile_options(vem_options INTERFACE -fsanitize=${VEM_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(vem_options INTERFACE -fsanitize=${VEM_SANITIZE})
endif()

if(VEM_LINKER)
    include(CheckLinkerFlag)
    check_linker_flag(CXX "-fuse-ld=${VEM_LINKER}" VEM_LINKER_FOUND)
    if(VEM_LINKER_FOUND)
        target_link_options(vem_options INTERFACE "-fuse-ld=${VEM_LINKER}")
    endif()
endif()

# A source that does nothing but carry the precompiled headers.
if(VEM_PCH)
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/precompiled.cpp" CONTENT "// Empty.\n")
    add_library(vem_pch OBJECT "${CMAKE_BINARY_DIR}/precompiled.cpp")
    target_link_libraries(vem_pch PRIVATE vem_options Qt6::Widgets)
    target_precompile_headers(vem_pch PRIVATE "${CMAKE_CURRENT_LIST_DIR}/precompiled.h")
endif()

function(vem_precompiled target)
    if(VEM_PCH)
        target_precompile_headers(${target} REUSE_FROM vem_pch)
    endif()
endfunction()

# vem_library(name SOURCES file... [LINKS folder-or-target...])
# The library vem_<name> of this folder. LINKS names other folders of the house by their short name;
# anything with "::" is a target of another package.
function(vem_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(vem_${name} STATIC ${arg_SOURCES})
    target_include_directories(vem_${name} PUBLIC "${PROJECT_SOURCE_DIR}")
    target_link_libraries(vem_${name} PUBLIC vem_options Qt6::Widgets)
    vem_link(vem_${name} ${arg_LINKS})
    vem_precompiled(vem_${name})
endfunction()

# vem_test(name SOURCES file... LINKS folder-or-target... [LABELS label...] [ON_DISPLAY])
# A QtTest program run by ctest, without a display unless it is to have one of its own.
function(vem_test name)
    cmake_parse_arguments(arg "ON_DISPLAY" "" "SOURCES;LINKS;LABELS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE vem_options Qt6::Test)
    vem_link(${name} ${arg_LINKS})
    vem_precompiled(${name})
    # A test includes what moc makes of it: this file is all but empty, and headers would only cost time.
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp"
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    target_compile_definitions(${name} PRIVATE
        VEM_TEST_SHARE="${VEM_SHARE_DIR}"
        VEM_TEST_SOURCE="${CMAKE_CURRENT_SOURCE_DIR}")
    add_dependencies(${name} vem_share)
    if(arg_ON_DISPLAY)
        add_test(NAME ${name} COMMAND "${PROJECT_SOURCE_DIR}/tools/on-virtual-display" "$<TARGET_FILE:${name}>")
    else()
        add_test(NAME ${name} COMMAND ${name})
    endif()
    # Nothing is to show on the desktop of whoever runs the tests.
    set_tests_properties(${name} PROPERTIES
        LABELS "${arg_LABELS}"
        TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;DBUS_SESSION_BUS_ADDRESS=disabled:;VEMSHARE=${VEM_SHARE_DIR};LC_ALL=C.UTF-8;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/configuration;${VEM_SANITIZER_ENVIRONMENT}")
endfunction()

function(vem_link target)
    foreach(link IN LISTS ARGN)
        if(link MATCHES "::")
            target_link_libraries(${target} PUBLIC ${link})
        else()
            target_link_libraries(${target} PUBLIC vem_${link})
        endif()
    endforeach()
endfunction()
