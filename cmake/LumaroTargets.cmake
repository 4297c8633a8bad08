# SPDX-License-Identifier: GPL-3.0-or-later
# What every target is compiled with, and one static library for each folder.

function(lumaro_target target)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference -ffunction-sections -fdata-sections)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 takes the concatenation of a literal and a std::string for an overlapping copy (its bug 105651), and at -O3
    # finds null pointers within its own stream buffers. clang-tidy's analyzer looks for those in our code.
    target_compile_options(${target} PRIVATE -Wno-restrict -Wno-null-dereference)
  endif()
  target_link_options(${target} PRIVATE -Wl,--gc-sections -Wl,--as-needed -Wl,-O1)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(${target} PRIVATE -Wno-unknown-warning-option)
  endif()
  if(LUMARO_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(LUMARO_SANITIZE)
    # These analyses read the checks that the sanitizers add as code of ours.
    target_compile_options(${target} PRIVATE -fsanitize=${LUMARO_SANITIZE} -fno-omit-frame-pointer
      -fno-sanitize-recover=undefined -Wno-null-dereference -Wno-maybe-uninitialized)
    target_link_options(${target} PRIVATE -fsanitize=${LUMARO_SANITIZE})
  endif()
endfunction()

# lumaro_precompiled(target): the headers that nearly every source includes, read once for all (a debug build takes half
# as long). Only the debug preset asks for it: the other presets show a source that leaves out an include it needs.
function(lumaro_precompiled target)
  if(NOT LUMARO_PRECOMPILE)
    return()
  endif()
  if(NOT TARGET lumaro_precompiled_headers)
    add_library(lumaro_precompiled_headers STATIC ${PROJECT_SOURCE_DIR}/cmake/Precompiled.cpp)
    lumaro_target(lumaro_precompiled_headers)
    target_link_libraries(lumaro_precompiled_headers PUBLIC Qt6::Core Qt6::Gui)
    target_compile_options(lumaro_precompiled_headers PRIVATE -fpch-preprocess)
    target_precompile_headers(lumaro_precompiled_headers PRIVATE ${PROJECT_SOURCE_DIR}/cmake/Precompiled.h)
  endif()
  target_compile_options(${target} PRIVATE -fpch-preprocess)
  target_precompile_headers(${target} REUSE_FROM lumaro_precompiled_headers)
endfunction()

# lumaro_folder(name directory LIBRARIES ... PRIVATE ...): a static library of the sources directly in the directory.
function(lumaro_folder name directory)
  cmake_parse_arguments(ARG "" "" "LIBRARIES;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${directory}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${directory}/*.h)
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} INTERFACE ${ARG_LIBRARIES} ${ARG_PRIVATE})
    return()
  endif()
  add_library(${name} STATIC ${sources} ${headers})
  lumaro_target(${name})
  lumaro_precompiled(${name})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LIBRARIES} PRIVATE ${ARG_PRIVATE})
endfunction()
