# Texts of Qt's translation, embedded as resources; without lrelease a build goes on in English.

find_package(Qt6LinguistTools QUIET)
if(TARGET Qt6::lrelease)
  get_target_property(TERN7_LRELEASE Qt6::lrelease IMPORTED_LOCATION)
endif()
if(NOT TERN7_LRELEASE AND Qt6_FOUND)
  find_program(TERN7_LRELEASE NAMES lrelease lrelease-qt6
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${QT6_INSTALL_PREFIX}/lib/qt6/bin
    NO_DEFAULT_PATH)
endif()

# tern7_translations(tern7widgets ui ui/translations)
# Every FOLDER/NAME_*.ts as :/tern7/translations/NAME_*.qm of the target, which defines
# TERN7_WITH_TRANSLATIONS and asks for the resource tern7_NAME_translations.
function(tern7_translations target name folder)
  if(NOT TARGET ${target} OR NOT TERN7_LRELEASE)
    return()
  endif()
  file(GLOB texts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/${name}_*.ts)
  set(resource tern7_${name}_translations)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/${resource})
  set(entries "")
  set(catalogues "")
  foreach(text IN LISTS texts)
    get_filename_component(leaf ${text} NAME_WE)
    add_custom_command(OUTPUT ${made}/${leaf}.qm
      COMMAND ${CMAKE_COMMAND} -E make_directory ${made}
      COMMAND ${TERN7_LRELEASE} -silent ${text} -qm ${made}/${leaf}.qm
      DEPENDS ${text} VERBATIM)
    list(APPEND catalogues ${made}/${leaf}.qm)
    string(APPEND entries "<file>${leaf}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${made}/${resource}.qrc CONTENT
    "<RCC><qresource prefix=\"/tern7/translations\">\n${entries}</qresource></RCC>\n")
  add_custom_command(OUTPUT ${made}/${resource}.cpp
    COMMAND Qt6::rcc --name ${resource} -o ${made}/${resource}.cpp ${made}/${resource}.qrc
    DEPENDS ${catalogues} ${made}/${resource}.qrc VERBATIM)
  set_source_files_properties(${made}/${resource}.cpp PROPERTIES
    SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON)
  target_sources(${target} PRIVATE ${made}/${resource}.cpp)
  target_compile_definitions(${target} PRIVATE TERN7_WITH_TRANSLATIONS)
endfunction()
