# Install rules: libraries, headers, the tool, the CMake package Tern7 with one export set per
# component, and a pkg-config file for the core. What is installed can be moved as a whole.
include(CMakePackageConfigHelpers)

set(TERN7_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Tern7)

# tern7_install(tern7core COMPONENT Core HEADERS core)
function(tern7_install library)
  cmake_parse_arguments(arg "" "COMPONENT;HEADERS" "" ${ARGN})
  if(NOT TARGET ${library})
    return()
  endif()
  install(TARGETS ${library} EXPORT Tern7${arg_COMPONENT}Targets
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    RUNTIME COMPONENT Runtime)
  install(EXPORT Tern7${arg_COMPONENT}Targets NAMESPACE Tern7::
    DESTINATION ${TERN7_CMAKE_DIR} COMPONENT Development)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/tern7/${arg_HEADERS}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tern7 COMPONENT Development
    FILES_MATCHING PATTERN "*.h")
endfunction()

tern7_install(tern7core COMPONENT Core HEADERS core)
tern7_install(tern7sql COMPONENT Sql HEADERS sql)
tern7_install(tern7widgets COMPONENT Widgets HEADERS ui)

file(GLOB gathering_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tern7/*.h)
if(gathering_headers)
  install(FILES ${gathering_headers}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tern7 COMPONENT Development)
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/tern7/ui/titles
  DESTINATION ${CMAKE_INSTALL_DATADIR}/tern7 COMPONENT Runtime FILES_MATCHING PATTERN "*.ttl")

if(TARGET tern)
  install(TARGETS tern RUNTIME COMPONENT Runtime)
  if(BUILD_SHARED_LIBS)
    file(RELATIVE_PATH libraries /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${CMAKE_INSTALL_LIBDIR})
    set_target_properties(tern PROPERTIES INSTALL_RPATH $ORIGIN/${libraries})
  endif()
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/Tern7Config.cmake.in
  ${PROJECT_BINARY_DIR}/Tern7Config.cmake INSTALL_DESTINATION ${TERN7_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/Tern7ConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/Tern7Config.cmake ${PROJECT_BINARY_DIR}/Tern7ConfigVersion.cmake
  DESTINATION ${TERN7_CMAKE_DIR} COMPONENT Development)

file(RELATIVE_PATH TERN7_PC_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tern7-core.pc.in ${PROJECT_BINARY_DIR}/tern7-core.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tern7-core.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
