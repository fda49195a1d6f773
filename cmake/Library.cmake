# What the four libraries have in common: a library that exports its own symbols alone, an export
# macro of its own, headers below include/orv/, a CMake package in whose namespace it is linked, and a
# pkg-config module that says the same. What is installed finds its neighbours from its own place, so
# that the prefix can be moved.
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)

# orv_library(<package>
#   DESCRIPTION <text>               in one line
#   TARGET <namespace>::<name>       the name that a consumer links
#   VERSION <x.y.z>                  soname and package compatibility are <x.y>
#   FOLDER <folder>                  the folder of the headers, as a consumer includes them
#   INCLUDE_ROOT <dir>               the folder that holds <folder>
#   HEADERS <file>... SOURCES <file>... [PRIVATE_HEADERS <file>...]
#   REQUIRES <package> <version> <target>...    public dependencies, three words each
#   [TRANSLATIONS_DIR <dir>])        the full path where the translations of its texts are installed
function(orv_library package)
  cmake_parse_arguments(PARSE_ARGV 1 ARG ""
    "DESCRIPTION;TARGET;VERSION;FOLDER;INCLUDE_ROOT;TRANSLATIONS_DIR"
    "HEADERS;PRIVATE_HEADERS;SOURCES;REQUIRES")
  string(REPLACE "::" ";" target_words "${ARG_TARGET}")
  list(GET target_words 0 namespace)
  list(GET target_words 1 export_name)
  string(REGEX MATCH "^[0-9]+\\.[0-9]+" abi_version "${ARG_VERSION}")
  string(REPLACE "-" "_" macro_base "${package}")
  string(TOUPPER "${macro_base}" macro_base)

  add_library(${package})
  add_library(${ARG_TARGET} ALIAS ${package})
  set(origin "$ORIGIN")
  if(APPLE)
    set(origin "@loader_path")
  endif()
  set_target_properties(${package} PROPERTIES
    EXPORT_NAME ${export_name}
    VERSION ${ARG_VERSION}
    SOVERSION ${abi_version}
    INSTALL_RPATH "${origin}"
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)

  set(export_header "${CMAKE_CURRENT_BINARY_DIR}/include/${ARG_FOLDER}/Export.hpp")
  generate_export_header(${package} BASE_NAME ${macro_base} EXPORT_FILE_NAME ${export_header})
  set(pc_definitions "")
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${package} PUBLIC ${macro_base}_STATIC_DEFINE)
    set(pc_definitions "-D${macro_base}_STATIC_DEFINE")
  elseif(UNIX AND NOT APPLE)
    set(symbols "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/exported-symbols.map")
    target_link_options(${package} PRIVATE "LINKER:--version-script,${symbols}")
    set_target_properties(${package} PROPERTIES LINK_DEPENDS "${symbols}")
  endif()

  target_compile_features(${package} PUBLIC cxx_std_20)
  # A host may define these for all that it builds.
  target_compile_definitions(${package} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
  target_sources(${package}
    PRIVATE ${ARG_SOURCES} ${ARG_PRIVATE_HEADERS}
    PUBLIC
      FILE_SET HEADERS BASE_DIRS "${ARG_INCLUDE_ROOT}" FILES ${ARG_HEADERS}
      FILE_SET generated_headers TYPE HEADERS
        BASE_DIRS "${CMAKE_CURRENT_BINARY_DIR}/include" FILES ${export_header})
  set(config_dependencies "")
  set(pc_requires "")
  while(ARG_REQUIRES)
    list(POP_FRONT ARG_REQUIRES required_package required_version required_target)
    target_link_libraries(${package} PUBLIC ${required_target})
    if(required_package STREQUAL "Qt6")
      string(APPEND config_dependencies
        "find_dependency(Qt6 ${required_version} COMPONENTS Core)\n")
      list(APPEND pc_requires "Qt6Core >= ${required_version}")
    else()
      string(APPEND config_dependencies "find_dependency(${required_package} ${required_version} "
        "HINTS \"\${CMAKE_CURRENT_LIST_DIR}/..\")\n")
      list(APPEND pc_requires "${required_package} >= ${required_version}")
    endif()
  endwhile()
  list(JOIN pc_requires ", " pc_requires)
  if(NOT ORV_BANKING_INSTALL)
    return()
  endif()

  # All paths are relative to the prefix, also where the user gives absolute ones.
  set(prefix "${CMAKE_INSTALL_PREFIX}")
  file(RELATIVE_PATH libdir "${prefix}" "${CMAKE_INSTALL_FULL_LIBDIR}")
  file(RELATIVE_PATH includedir "${prefix}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}/orv")
  cmake_path(RELATIVE_PATH prefix BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
    OUTPUT_VARIABLE pc_prefix)
  set(config_variables "")
  set(pc_variables "")
  if(ARG_TRANSLATIONS_DIR)
    file(RELATIVE_PATH translations_dir "${prefix}" "${ARG_TRANSLATIONS_DIR}")
    set(config_variables "set(${macro_base}_TRANSLATIONS_DIR "
      "\"\${PACKAGE_PREFIX_DIR}/${translations_dir}\")\n")
    list(JOIN config_variables "" config_variables)
    set(pc_variables "translationsdir=\${prefix}/${translations_dir}\n")
  endif()

  set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
  set(template_dir "${CMAKE_CURRENT_FUNCTION_LIST_DIR}")
  configure_package_config_file(
    "${template_dir}/package-config.cmake.in" ${package}-config.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file(${package}-config-version.cmake
    VERSION ${ARG_VERSION} COMPATIBILITY SameMinorVersion)
  configure_file("${template_dir}/package.pc.in" ${package}.pc @ONLY)

  install(TARGETS ${package} EXPORT ${package}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
      COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    FILE_SET HEADERS DESTINATION ${includedir} COMPONENT Development
    FILE_SET generated_headers DESTINATION ${includedir} COMPONENT Development)
  install(EXPORT ${package} FILE ${package}-targets.cmake NAMESPACE ${namespace}::
    DESTINATION ${package_dir} COMPONENT Development)
  install(
    FILES
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config.cmake
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config-version.cmake
    DESTINATION ${package_dir} COMPONENT Development)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()
