# A .ts file for each language, and one without a language to begin another from; translations/update
# brings them in line with the source.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# orv_banking_translations(<name> <target> <share> [<install_dir>]): the .qm files of <name>, built with
# <target> in <share>/<name>/translations, and installed in <install_dir>.
function(orv_banking_translations name target share)
  set(source "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../translations")
  # An empty translation, as Qt's own for English: whoever puts English before French is not to get
  # French because English has no file.
  set(english "${CMAKE_CURRENT_BINARY_DIR}/${name}_en.ts")
  configure_file("${source}/${name}.ts" "${english}" COPYONLY)

  file(GLOB files CONFIGURE_DEPENDS "${source}/${name}_*.ts")
  list(APPEND files "${english}")
  set_source_files_properties(${files} PROPERTIES OUTPUT_LOCATION "${share}/${name}/translations")
  qt_add_lrelease(${target} TS_FILES ${files} OPTIONS -silent QM_FILES_OUTPUT_VARIABLE compiled)
  if(ARGV3)
    install(FILES ${compiled} DESTINATION ${ARGV3} COMPONENT Runtime)
  endif()
endfunction()
