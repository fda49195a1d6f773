# What the four libraries have in common: a library that exports its own symbols alone, an export
# macro of its own, headers below include/orv/, a CMake package in whose namespace it is linked, and a
# pkg-config module that says the same. What is installed finds its neighbours from its own place, so
# that the prefix can be moved.
include(CMakePackageConfigHelpers)
include(GenerateExportHeader)

# orv_library(<package>              builds a library
#   TARGET <namespace>::<name>       the name that a consumer links
#   VERSION <x.y.z>                  soname and package compatibility are <x.y>
#   FOLDER <folder>                  the folder of the headers, as a consumer includes them
#   INCLUDE_ROOT <dir>               the folder that holds <folder>
#   HEADERS <file>... SOURCES <file>... [PRIVATE_HEADERS <file>...]
#   LINK_LIBRARIES <target>...)      what a consumer links too
function(orv_library package)
  cmake_parse_arguments(PARSE_ARGV 1 ARG ""
    "TARGET;VERSION;FOLDER;INCLUDE_ROOT" "HEADERS;PRIVATE_HEADERS;SOURCES;LINK_LIBRARIES")
  string(REGEX REPLACE ".*::" "" export_name "${ARG_TARGET}")
  string(REGEX MATCH "^[0-9]+\\.[0-9]+" abi_version "${ARG_VERSION}")

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
  orv_macro_base(macro_base ${package})
  generate_export_header(${package} BASE_NAME ${macro_base} EXPORT_FILE_NAME ${export_header})
  if(NOT BUILD_SHARED_LIBS)
    target_compile_definitions(${package} PUBLIC ${macro_base}_STATIC_DEFINE)
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
  target_link_libraries(${package} PUBLIC ${ARG_LINK_LIBRARIES})
  # A change of a central header is compiled sooner. A host is not to wait for what it compiles once.
  if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_UNITY_BUILD)
    target_precompile_headers(${package} PRIVATE
      <QDebug> <QObject> <map> <optional> <set> <sstream>)
  endif()
endfunction()

# orv_install(<package>              installs a library of orv_library, where that is wanted
#   DESCRIPTION <text>               in one line
#   NAMESPACE <namespace>            of the name that a consumer links
#   FIND_DEPENDENCIES <line>...      how the CMake package finds what it stands on
#   PC_REQUIRES <text>               the same for pkg-config
#   [TRANSLATIONS_DIR <dir>])        the full path where the translations of its texts are installed
function(orv_install package)
  if(NOT ORV_BANKING_INSTALL)
    return()
  endif()
  cmake_parse_arguments(PARSE_ARGV 1 ARG ""
    "DESCRIPTION;NAMESPACE;PC_REQUIRES;TRANSLATIONS_DIR" "FIND_DEPENDENCIES")
  get_target_property(version ${package} VERSION)
  orv_macro_base(macro_base ${package})
  set(pc_definitions "")
  if(NOT BUILD_SHARED_LIBS)
    set(pc_definitions "-D${macro_base}_STATIC_DEFINE")
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
    set(config_variables
      "set(${macro_base}_TRANSLATIONS_DIR \"\${PACKAGE_PREFIX_DIR}/${translations_dir}\")\n")
    set(pc_variables "translationsdir=\${prefix}/${translations_dir}\n")
  endif()

  list(JOIN ARG_FIND_DEPENDENCIES "\n" find_dependencies)
  set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${package}")
  set(template_dir "${CMAKE_CURRENT_FUNCTION_LIST_DIR}")
  configure_package_config_file(
    "${template_dir}/package-config.cmake.in" ${package}-config.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file(${package}-config-version.cmake
    VERSION ${version} COMPATIBILITY SameMinorVersion)
  configure_file("${template_dir}/package.pc.in" ${package}.pc @ONLY)

  install(TARGETS ${package} EXPORT ${package}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
      COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
    FILE_SET HEADERS DESTINATION ${includedir} COMPONENT Development
    FILE_SET generated_headers DESTINATION ${includedir} COMPONENT Development)
  install(EXPORT ${package} FILE ${package}-targets.cmake NAMESPACE ${ARG_NAMESPACE}::
    DESTINATION ${package_dir} COMPONENT Development)
  install(
    FILES
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config.cmake
      ${CMAKE_CURRENT_BINARY_DIR}/${package}-config-version.cmake
    DESTINATION ${package_dir} COMPONENT Development)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${package}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)
endfunction()

# The beginning of the names of a package's macros and variables.
function(orv_macro_base variable package)
  string(MAKE_C_IDENTIFIER "${package}" base)
  string(TOUPPER "${base}" base)
  set(${variable} "${base}" PARENT_SCOPE)
endfunction()
