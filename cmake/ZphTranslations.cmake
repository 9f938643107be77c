# zph_add_translations(<qm_variable> <qrc_variable>
#                      OUTPUT_LOCATION <folder>
#                      [ALIAS_PREFIX <prefix>]
#                      [CATALOGUE <path/name_> LANGUAGES <language>...]
#                      [TS_FILES <file.ts>...]
#                      [TS_LIST <ts_variable>])
#
# Compiles translation catalogues with lrelease into OUTPUT_LOCATION: those
# named <path/name_><language>.ts for every language, and the TS_FILES.
# <qm_variable> receives the compiled .qm files; <qrc_variable> one line per
# catalogue for a Qt resource file,
#         <file alias="<prefix><name>.qm"><compiled file></file>
# ready to be put inside a <qresource> element; <ts_variable> the catalogues
# themselves, for an lupdate run.

function(zph_add_translations qm_variable qrc_variable)
  cmake_parse_arguments(T "" "OUTPUT_LOCATION;ALIAS_PREFIX;CATALOGUE;TS_LIST" "LANGUAGES;TS_FILES" ${ARGN})
  if(NOT T_OUTPUT_LOCATION)
    message(FATAL_ERROR "zph_add_translations: OUTPUT_LOCATION is required")
  endif()
  set(ts ${T_TS_FILES})
  foreach(language ${T_LANGUAGES})
    list(APPEND ts ${T_CATALOGUE}${language}.ts)
  endforeach()
  set_source_files_properties(${ts} PROPERTIES OUTPUT_LOCATION ${T_OUTPUT_LOCATION})
  # Not "qm": Qt's macro uses that name for its own variable.
  qt5_add_translation(compiled ${ts})
  set(entries "")
  foreach(file ${compiled})
    get_filename_component(name ${file} NAME)
    string(APPEND entries "        <file alias=\"${T_ALIAS_PREFIX}${name}\">${file}</file>\n")
  endforeach()
  set(${qm_variable} ${compiled} PARENT_SCOPE)
  set(${qrc_variable} "${entries}" PARENT_SCOPE)
  if(T_TS_LIST)
    set(${T_TS_LIST} ${ts} PARENT_SCOPE)
  endif()
endfunction()
