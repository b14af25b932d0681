# What every target of the project shares: the language, the warnings, the sanitizers, and the
# functions that turn a folder into a library, a test program or a benchmark.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(KVR5_WERROR "Treat warnings as errors" ON)
option(KVR5_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)

find_program(KVR5_CCACHE ccache)
if(KVR5_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${KVR5_CCACHE}")
endif()

# Some thirty programs are linked for the tests: the quick linker, where it is installed.
find_program(KVR5_MOLD mold)
if(KVR5_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12.1
   AND NOT CMAKE_CROSSCOMPILING)
  add_link_options(-fuse-ld=mold)
endif()

add_library(kvr5_options INTERFACE)
target_compile_options(kvr5_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion
  -Wimplicit-fallthrough -Wextra-semi)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # False alarm of this compiler on std::string's operator+ when it optimises.
  target_compile_options(kvr5_options INTERFACE -Wno-restrict)
endif()
if(KVR5_WERROR)
  target_compile_options(kvr5_options INTERFACE -Werror)
endif()
if(KVR5_SANITIZE)
  target_compile_options(kvr5_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kvr5_options INTERFACE -fsanitize=address,undefined)
endif()

# Precompiled headers: what nearly every source of a kind includes is read once a build. Sources name
# all that they use none the less; the release build, which does without, keeps them honest.
option(KVR5_PRECOMPILE "Read common headers once a build, not once a source" OFF)

# Unity builds: what sources include takes most of the time to compile them, and is read once for
# several of them. They see each other's unnamed namespaces then, so a name stands in one source of a
# target only. The release build, which does without, shows that each includes what it uses.
option(KVR5_TOGETHER "Compile sources of a target several at a time" OFF)
set(CMAKE_UNITY_BUILD ${KVR5_TOGETHER})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8 CACHE STRING "How many at a time; 0: all of a target")

# Of the sanitized builds only what is tested is worth optimising: the tests themselves take twice the
# time to compile then. And of a test the lines do for a debugger.
function(kvr5_compile_quickly target kind)
  if(kind MATCHES "tests$" AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-g1>)
  endif()
  if(KVR5_SANITIZE AND kind MATCHES "tests$")
    target_compile_options(${target} PRIVATE -O0)
  endif()
endfunction()

# kvr5_share_headers(<kind> HEADERS <header>... LINK <target>...): the headers of a kind of target.
function(kvr5_share_headers kind)
  cmake_parse_arguments(ARG "" "" "HEADERS;LINK" ${ARGN})
  if(KVR5_PRECOMPILE)
    file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/headers/${kind}.cpp" CONTENT "")
    add_library(kvr5_headers_${kind} OBJECT "${PROJECT_BINARY_DIR}/headers/${kind}.cpp")
    target_link_libraries(kvr5_headers_${kind} PRIVATE ${ARG_LINK} kvr5_options)
    target_precompile_headers(kvr5_headers_${kind} PRIVATE ${ARG_HEADERS})
    kvr5_compile_quickly(kvr5_headers_${kind} ${kind})
  endif()
endfunction()

# kvr5_take_headers(<target> <kind>)
function(kvr5_take_headers target kind)
  kvr5_compile_quickly(${target} ${kind})
  if(KVR5_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM kvr5_headers_${kind})
  endif()
endfunction()

# kvr5_add_library(<name> [DEPENDS <subsystem>...] [LINK <target>...])
# The library kvr5_<name> of all sources of the current folder; headers are included as
# "<name>/Header.h". Only the subsystems named under DEPENDS may be included.
function(kvr5_add_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS;LINK" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}"
    "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER sources EXCLUDE REGEX "^(screens|qt|main|audio|udisks)/")
  add_library(kvr5_${name} STATIC ${sources})
  target_include_directories(kvr5_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  list(TRANSFORM ARG_DEPENDS PREPEND kvr5_)
  target_link_libraries(kvr5_${name} PUBLIC ${ARG_DEPENDS} ${ARG_LINK} PRIVATE kvr5_options)
endfunction()

# kvr5_list_tests(<target> <prefix> <seconds> <environment>)
# Has ctest know the tests of a program, see Tests.cmake.
function(kvr5_list_tests target prefix seconds environment)
  set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}_tests.cmake")
  file(GENERATE OUTPUT "${script}" CONTENT "set(PROGRAM \"$<TARGET_FILE:${target}>\")
set(PREFIX \"${prefix}\")
set(FOLDER \"${CMAKE_CURRENT_BINARY_DIR}\")
set(TIMEOUT ${seconds})
set(ENVIRONMENT \"${environment}\")
include(\"${PROJECT_SOURCE_DIR}/cmake/Tests.cmake\")
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${script}")
endfunction()

# kvr5_add_test(<name> LINK <target>... [HEADERS <kind>])
# The GoogleTest program test_<name> of all sources of the current folder.
function(kvr5_add_test name)
  cmake_parse_arguments(ARG "" "HEADERS" "LINK" ${ARGN})
  if(NOT ARG_HEADERS)
    set(ARG_HEADERS tests)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(test_${name} PRIVATE
    ${ARG_LINK} kvr5_test_support kvr5_test_main GTest::gtest GTest::gmock kvr5_options)
  target_compile_definitions(test_${name} PRIVATE
    KVR5_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}/data")
  kvr5_take_headers(test_${name} ${ARG_HEADERS})
  kvr5_list_tests(test_${name} "${name}/" 600 "")
endfunction()

# kvr5_add_screens(<name> [DEPENDS <target>...])
# The library kvr5_<name>_screens of the folder screens/ below the current one: the only ones that
# see the toolkit.
function(kvr5_add_screens name)
  if(NOT KVR5_SCREENS)
    return()
  endif()
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/screens/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/screens/*.h")
  add_library(kvr5_${name}_screens STATIC ${sources})
  target_include_directories(kvr5_${name}_screens SYSTEM PRIVATE ${Qt6Widgets_INCLUDE_DIRS})
  target_link_libraries(kvr5_${name}_screens PUBLIC kvr5_${name} ${ARG_DEPENDS} Qt6::Widgets
    PRIVATE kvr5_options)
  kvr5_take_headers(kvr5_${name}_screens screens)
endfunction()

# kvr5_add_screen_test(<name> LINK <target>...)
# The GoogleTest program test_<name>_screens of all sources of the current folder: real widgets,
# operated by mouse and keys, without a display. The target screen_tests stands for all of them.
function(kvr5_add_screen_test name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS
    "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp" "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  set(target test_${name}_screens)
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE
    ${ARG_LINK} kvr5_test_screens GTest::gtest GTest::gmock Qt6::Test kvr5_options)
  kvr5_take_headers(${target} screen_tests)
  if(NOT TARGET screen_tests)
    add_custom_target(screen_tests)
  endif()
  add_dependencies(screen_tests ${target})
  kvr5_list_tests(${target} "${name}/screens/" 600 "QT_QPA_PLATFORM=offscreen")
endfunction()
