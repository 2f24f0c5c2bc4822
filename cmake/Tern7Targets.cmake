# What every target of this project is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_INSTALL_RPATH $ORIGIN)

# Classes carry no export marks: a shared library exports everything, a static one hides it from
# the users of whatever it is linked into.
if(BUILD_SHARED_LIBS)
  set(CMAKE_WINDOWS_EXPORT_ALL_SYMBOLS ON)
else()
  set(CMAKE_CXX_VISIBILITY_PRESET hidden)
  set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
endif()

if(TERN7_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(TERN7_CCACHE_PROGRAM ccache)
  if(TERN7_CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${TERN7_CCACHE_PROGRAM})
  endif()
endif()

set(sanitizers "")
if(TERN7_SANITIZE OR TERN7_BUILD_FUZZERS)
  set(sanitizers -fsanitize=address,undefined -fno-omit-frame-pointer
    -fno-sanitize-recover=undefined)
endif()
if(TERN7_BUILD_FUZZERS)
  list(APPEND sanitizers -fsanitize=fuzzer-no-link)
endif()

add_library(tern7_build_flags INTERFACE)
if(NOT MSVC)
  target_compile_options(tern7_build_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${TERN7_WERROR}>:-Werror>)
  # g++ 12 reports overlaps in the standard library's own strings that can not happen
  target_compile_options(tern7_build_flags INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
  # In a unity build every source but the first counts as a header.
  if(CMAKE_UNITY_BUILD)
    target_compile_options(tern7_build_flags INTERFACE
      $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  endif()
endif()
target_compile_options(tern7_build_flags INTERFACE ${sanitizers})
target_link_options(tern7_build_flags INTERFACE ${sanitizers})

# The flags are this project's own business: nothing of them reaches a consumer.
function(tern7_target name)
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:tern7_build_flags>)
endfunction()

# tern7_library(tern7core COMPONENT Core FOLDER core LIBS ...)
# A library of everything below FOLDER, as Tern7::Core. Does nothing while the folder is empty.
function(tern7_library name)
  cmake_parse_arguments(arg "" "COMPONENT;FOLDER" "LIBS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/*.h
    ${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/*.qrc)
  if(NOT sources MATCHES "\\.cpp")
    return()
  endif()
  add_library(${name} ${sources})
  add_library(Tern7::${arg_COMPONENT} ALIAS ${name})
  tern7_target(${name})
  target_link_libraries(${name} PUBLIC ${arg_LIBS})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${name} PROPERTIES
    EXPORT_NAME ${arg_COMPONENT} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(arg_LIBS MATCHES "Qt6::")
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
  endif()
  if(TERN7_CHECK_HEADERS)
    tern7_check_headers(${name})
  endif()
endfunction()

# One source per header of the library that includes nothing but this header: what it lacks does
# not compile. Checked by building, so that only changed headers are compiled again.
function(tern7_check_headers library)
  get_target_property(sources ${library} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.h$")
  set(units "")
  foreach(header IN LISTS sources)
    file(RELATIVE_PATH header ${PROJECT_SOURCE_DIR} ${header})
    string(REPLACE "/" "_" unit ${header})
    set(unit ${CMAKE_CURRENT_BINARY_DIR}/headers/${unit}.cpp)
    file(CONFIGURE OUTPUT ${unit} CONTENT "#include <${header}> // IWYU pragma: keep\n")
    list(APPEND units ${unit})
  endforeach()
  if(units)
    add_library(${library}_headers OBJECT ${units})
    target_link_libraries(${library}_headers PRIVATE ${library})
    target_compile_options(${library}_headers PRIVATE
      -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -O0 -g0)
    set_target_properties(${library}_headers PROPERTIES UNITY_BUILD OFF AUTOMOC OFF)
    # A header of the core is also included behind those of Qt, which make macros of these words.
    get_target_property(is_qt ${library} AUTOMOC)
    if(NOT is_qt)
      target_compile_definitions(${library}_headers PRIVATE
        slots= signals=public emit= foreach= forever=)
    endif()
  endif()
endfunction()

# clang-tidy takes its checks from the nearest .clang-tidy above a source: generated sources are
# left alone. One check has to stay on.
if(CMAKE_CXX_CLANG_TIDY)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/.clang-tidy
    CONTENT "Checks: '-*,misc-static-assert'\nInheritParentConfig: false\n")
endif()
