# A .ts file for each language, and one without a language to begin another from; translations/update
# brings them in line with the source.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# orv_banking_translations(<name> <target> <folder> <files>): compiles the translations of <name> with <target> into
# <folder>, and sets <files> to the .qm files.
function(orv_banking_translations name target folder files)
  set(source "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../translations")
  # An empty translation, as Qt's own for English: whoever puts English before French is not to get
  # French because English has no file.
  set(english "${CMAKE_CURRENT_BINARY_DIR}/${name}_en.ts")
  configure_file("${source}/${name}.ts" "${english}" COPYONLY)

  file(GLOB languages CONFIGURE_DEPENDS "${source}/${name}_*.ts")
  list(APPEND languages "${english}")
  set_source_files_properties(${languages} PROPERTIES OUTPUT_LOCATION "${folder}")
  qt_add_lrelease(${target} TS_FILES ${languages} OPTIONS -silent QM_FILES_OUTPUT_VARIABLE compiled)
  set(${files} ${compiled} PARENT_SCOPE)
endfunction()

# orv_banking_embed_translations(<name> <target>): puts the translations of <name>, and of the library in the same
# languages, among the resources of <target>, in :/i18n.
function(orv_banking_embed_translations name target)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/i18n")
  orv_banking_translations(${name} ${target} "${folder}" own)
  set(library ${own})
  list(TRANSFORM library REPLACE "^.*/${name}_" "${ORV_BANKING_TRANSLATIONS_DIR}/orv-banking_")
  qt_add_resources(${target} own_texts PREFIX /i18n BASE "${folder}" FILES ${own})
  qt_add_resources(${target} library_texts
    PREFIX /i18n BASE "${ORV_BANKING_TRANSLATIONS_DIR}" FILES ${library})
endfunction()
