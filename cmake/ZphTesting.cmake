# zph_add_test(NAME <name> SOURCES <files...> LIBRARIES <targets...>
#              [LABELS <labels...>] [TIMEOUT <seconds>])
#
# Builds one Qt Test suite and registers it with CTest. Every suite runs on the
# offscreen platform, so widget tests need no display. The label "thread" marks
# suites that are also run under ThreadSanitizer; "slow" marks suites that the
# sanitizer runs may skip.

function(zph_add_test)
  cmake_parse_arguments(T "" "NAME;TIMEOUT" "SOURCES;LIBRARIES;LABELS" ${ARGN})
  add_executable(${T_NAME} ${T_SOURCES})
  target_link_libraries(${T_NAME} PRIVATE Qt5::Test ${T_LIBRARIES})
  zph_strict(${T_NAME})
  add_test(NAME ${T_NAME} COMMAND ${T_NAME})
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 300)
  endif()
  set_tests_properties(${T_NAME} PROPERTIES
    TIMEOUT ${T_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.qpa.*=false")
  if(T_LABELS)
    set_tests_properties(${T_NAME} PROPERTIES LABELS "${T_LABELS}")
  endif()
endfunction()
