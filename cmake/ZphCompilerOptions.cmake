# Warnings and sanitizers for the project's own targets.
#
# zph_strict(target) turns on the house warnings as errors; every target of
# ours calls it. Generated sources (moc, uic, rcc) are compiled with the same
# flags, which Qt's generators keep clean.

function(zph_strict target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Werror -Wnon-virtual-dtor -Woverloaded-virtual)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x050000)
endfunction()

if(ZPH_SANITIZE)
  string(REPLACE ";" "," _zph_san "${ZPH_SANITIZE}")
  message(STATUS "Sanitizers: ${_zph_san}")
  add_compile_options(-fsanitize=${_zph_san} -fno-omit-frame-pointer -g)
  add_link_options(-fsanitize=${_zph_san})
  if(_zph_san MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
endif()
