# The storage library: SQLite with page encryption, as one C file. It is taken by package name and version with
# `npm pack`, checked against the hash below, and compiled once. CALLSCOPE_SQLITE_DIR names a folder that already holds
# sqlite3.c and sqlite3.h, for machines without a package registry.

set(CALLSCOPE_SQLITE_DIR "" CACHE PATH "Folder with sqlite3.c and sqlite3.h of SQLite3 Multiple Ciphers")
set(CALLSCOPE_SQLITE_PACKAGE "better-sqlite3-multiple-ciphers")
set(CALLSCOPE_SQLITE_VERSION "12.11.1")
set(CALLSCOPE_SQLITE_SHA512
    "a46ef6fb7564522a67998c782f042aa0e5cd1b6089d479660eb96faa0afbc501e0b04f9ccf9ac064489a2479d42931da19f1a27e0800fc2d12bfda99954adfa3"
)

function(callscope_fetch_sqlite out)
  if(DEFINED ENV{XDG_CACHE_HOME})
    set(cache "$ENV{XDG_CACHE_HOME}/callscope")
  elseif(DEFINED ENV{HOME})
    set(cache "$ENV{HOME}/.cache/callscope")
  else()
    set(cache "${CMAKE_BINARY_DIR}/downloads")
  endif()
  set(archive "${cache}/${CALLSCOPE_SQLITE_PACKAGE}-${CALLSCOPE_SQLITE_VERSION}.tgz")
  # Unpacked beside the archive, so that every build folder compiles the same file and the compiler cache serves them all.
  set(unpacked "${cache}/${CALLSCOPE_SQLITE_PACKAGE}-${CALLSCOPE_SQLITE_VERSION}")
  if(NOT EXISTS "${archive}")
    find_program(NPM_PROGRAM npm REQUIRED)
    file(MAKE_DIRECTORY "${cache}")
    message(STATUS "Fetching ${CALLSCOPE_SQLITE_PACKAGE} ${CALLSCOPE_SQLITE_VERSION}")
    execute_process(
      COMMAND "${NPM_PROGRAM}" pack --silent "${CALLSCOPE_SQLITE_PACKAGE}@${CALLSCOPE_SQLITE_VERSION}"
      WORKING_DIRECTORY "${cache}"
      RESULT_VARIABLE failed
      OUTPUT_QUIET)
    if(failed OR NOT EXISTS "${archive}")
      message(FATAL_ERROR "Could not fetch ${CALLSCOPE_SQLITE_PACKAGE}; set CALLSCOPE_SQLITE_DIR to a local copy")
    endif()
  endif()
  file(SHA512 "${archive}" found)
  if(NOT found STREQUAL CALLSCOPE_SQLITE_SHA512)
    file(REMOVE "${archive}")
    message(FATAL_ERROR "${archive} does not have the expected SHA-512; it was removed")
  endif()
  if(NOT EXISTS "${unpacked}/package/deps/sqlite3/sqlite3.c")
    file(ARCHIVE_EXTRACT INPUT "${archive}" DESTINATION "${unpacked}" PATTERNS "package/deps/sqlite3/*")
  endif()
  set(${out} "${unpacked}/package/deps/sqlite3" PARENT_SCOPE)
endfunction()

# The layer that encrypts passes over every failed read but that of a short file, and then takes whatever the buffer held
# for the page. Where the library has that fault, `mended` is made without it.
function(callscope_mend_sqlite source mended out)
  set(${out} "${mended}" PARENT_SCOPE)
  if(EXISTS "${mended}" AND NOT "${source}" IS_NEWER_THAN "${mended}")
    return()
  endif()
  file(READ "${source}" text)
  string(REPLACE "if (rc == SQLITE_IOERR_SHORT_READ)\n" "if (rc != SQLITE_OK)\n" changed "${text}")
  if(changed STREQUAL text)
    set(${out} "${source}" PARENT_SCOPE)
    return()
  endif()
  # Two build folders may be configured at once.
  string(RANDOM LENGTH 8 suffix)
  file(WRITE "${mended}.${suffix}" "${changed}")
  file(RENAME "${mended}.${suffix}" "${mended}")
endfunction()

if(CALLSCOPE_SQLITE_DIR)
  set(sqlite_dir "${CALLSCOPE_SQLITE_DIR}")
  callscope_mend_sqlite("${sqlite_dir}/sqlite3.c" "${CMAKE_BINARY_DIR}/sqlite3-mended.c" sqlite_source)
else()
  callscope_fetch_sqlite(sqlite_dir)
  callscope_mend_sqlite("${sqlite_dir}/sqlite3.c" "${sqlite_dir}/sqlite3-mended.c" sqlite_source)
endif()

add_library(callscope_sqlite3 STATIC "${sqlite_source}")
target_include_directories(callscope_sqlite3 SYSTEM PUBLIC "${sqlite_dir}")
# The most files a workspace can hold open at once is SQLITE_MAX_ATTACHED (125 is the library's own ceiling).
target_compile_definitions(
  callscope_sqlite3
  PUBLIC SQLITE_MAX_ATTACHED=125
  PRIVATE SQLITE_THREADSAFE=2
          SQLITE_DEFAULT_MEMSTATUS=0
          SQLITE_LIKE_DOESNT_MATCH_BLOBS
          SQLITE_OMIT_DEPRECATED
          SQLITE_OMIT_SHARED_CACHE
          SQLITE_DQS=0
          SQLITE_MAX_EXPR_DEPTH=10000
          SQLITE_ENABLE_COLUMN_METADATA
          SQLITE_TEMP_STORE=2
          SQLITE_USE_URI=0
          SQLITE_USER_AUTHENTICATION=0
          SQLITE_OMIT_LOAD_EXTENSION
          CODEC_TYPE=CODEC_TYPE_AEGIS)
set_target_properties(callscope_sqlite3 PROPERTIES C_STANDARD 11 C_EXTENSIONS ON)
# The undefined-behaviour sanitizer takes minutes over this one file and would judge code that is not ours.
target_compile_options(
  callscope_sqlite3 PRIVATE -w $<$<C_COMPILER_ID:GNU,Clang>:-O2>
                            $<$<AND:$<BOOL:${CALLSCOPE_SANITIZE}>,$<C_COMPILER_ID:GNU,Clang>>:-O1;-fno-sanitize=undefined>)
find_package(Threads REQUIRED)
target_link_libraries(callscope_sqlite3 PUBLIC Threads::Threads PRIVATE ${CMAKE_DL_LIBS} m)
