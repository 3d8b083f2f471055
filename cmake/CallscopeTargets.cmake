# One place for what all targets share: warnings, sanitizers, include roots and the shape of a test.

add_library(callscope_warnings INTERFACE)
target_compile_options(
  callscope_warnings
  INTERFACE $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wconversion;-Wno-sign-conversion;-Wnon-virtual-dtor;-Woverloaded-virtual;-Wcast-qual>
            $<$<CXX_COMPILER_ID:MSVC>:/W4;/permissive-;/utf-8>
            $<$<AND:$<BOOL:${CALLSCOPE_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:GNU,Clang>>:-Werror>
            $<$<AND:$<BOOL:${CALLSCOPE_WARNINGS_AS_ERRORS}>,$<CXX_COMPILER_ID:MSVC>>:/WX>)

# GCC 12 sees overlapping copies in every "text" + std::string at -O3.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(callscope_warnings INTERFACE -Wno-restrict)
endif()

if(CALLSCOPE_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# callscope_library(NAME sources...): a static library of one room, included from src/ and from the top of the tree.
function(callscope_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE callscope_warnings)
endfunction()

# callscope_test(NAME SOURCES files... LIBS libraries...): one test program of GoogleTest cases, one ctest entry.
function(callscope_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE callscope_warnings ${TEST_LIBS} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 600)
endfunction()
