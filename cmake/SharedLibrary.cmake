# What the four libraries have in common: one shared library with hidden visibility, an export macro
# of its own, headers below include/orv/, and a CMake package in whose namespace it is linked.
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)
include(GNUInstallDirs)

# orv_shared_library(<package>
#   TARGET <namespace>::<name>       the name that a consumer links
#   VERSION <x.y.z>                  soname and package compatibility are <x.y>
#   FOLDER <folder>                  the folder of the headers, as a consumer includes them
#   INCLUDE_ROOT <dir>               the folder that holds <folder>
#   HEADERS <file>... SOURCES <file>... [PRIVATE_HEADERS <file>...]
#   REQUIRES <package> <version> <target>...    public dependencies, three words each)
function(orv_shared_library package)
  cmake_parse_arguments(PARSE_ARGV 1 ARG ""
    "TARGET;VERSION;FOLDER;INCLUDE_ROOT" "HEADERS;PRIVATE_HEADERS;SOURCES;REQUIRES")
  string(REPLACE "::" ";" target_words "${ARG_TARGET}")
  list(GET target_words 0 namespace)
  list(GET target_words 1 export_name)
  string(REGEX MATCH "^[0-9]+\\.[0-9]+" abi_version "${ARG_VERSION}")
  string(REPLACE "-" "_" macro_base "${package}")

  add_library(${package} SHARED)
  add_library(${ARG_TARGET} ALIAS ${package})
  set_target_properties(${package} PROPERTIES
    EXPORT_NAME ${export_name}
    VERSION ${ARG_VERSION}
    SOVERSION ${abi_version}
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)

  set(export_header "${CMAKE_CURRENT_BINARY_DIR}/include/${ARG_FOLDER}/Export.hpp")
  generate_export_header(${package} BASE_NAME ${macro_base} EXPORT_FILE_NAME ${export_header})

  target_compile_features(${package} PUBLIC cxx_std_20)
  target_sources(${package}
    PRIVATE ${ARG_SOURCES} ${ARG_PRIVATE_HEADERS}
    PUBLIC
      FILE_SET HEADERS BASE_DIRS "${ARG_INCLUDE_ROOT}" FILES ${ARG_HEADERS}
      FILE_SET generated_headers TYPE HEADERS
        BASE_DIRS "${CMAKE_CURRENT_BINARY_DIR}/include" FILES ${export_header})
  # A consumer's warnings are its own: the installed headers are system headers to it.
  target_include_directories(${package} SYSTEM INTERFACE
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/orv>)

  set(dependencies "")
  while(ARG_REQUIRES)
    list(POP_FRONT ARG_REQUIRES required_package required_version required_target)
    target_link_libraries(${package} PUBLIC ${required_target})
    if(required_package STREQUAL "Qt6")
      string(APPEND dependencies "find_dependency(Qt6 ${required_version} COMPONENTS Core)\n")
    else()
      string(APPEND dependencies "find_dependency(${required_package} ${required_version})\n")
    endif()
  endwhile()

  set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
  install(TARGETS ${package} EXPORT ${package}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
      COMPONENT Runtime NAMELINK_COMPONENT Development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orv COMPONENT Development
    FILE_SET generated_headers DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orv COMPONENT Development)
  install(EXPORT ${package} FILE ${package}-targets.cmake NAMESPACE ${namespace}::
    DESTINATION ${package_dir} COMPONENT Development)
  file(CONFIGURE OUTPUT ${package}-config.cmake @ONLY CONTENT
"include(CMakeFindDependencyMacro)
@dependencies@
include(\"\${CMAKE_CURRENT_LIST_DIR}/@package@-targets.cmake\")
")
  write_basic_package_version_file(${package}-config-version.cmake
    VERSION ${ARG_VERSION} COMPATIBILITY SameMinorVersion)
  install(
    FILES
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config.cmake
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config-version.cmake
    DESTINATION ${package_dir} COMPONENT Development)
endfunction()
