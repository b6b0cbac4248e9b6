# A test of ctest is one suite: a process of its own, in which the suite's tests follow each other.
#
#   quorvel_add_suites(layout_ui_tests ui/layout/ LABELS ui TIMEOUT 300)    the program, the names' beginning, properties

function(quorvel_add_suites program prefix)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/${program}-suites.cmake")
  add_custom_command(TARGET ${program} POST_BUILD
    COMMAND "${CMAKE_COMMAND}" -D "program=$<TARGET_FILE:${program}>" -D "prefix=${prefix}" -D "properties=${ARGN}"
            -D "list=${list}" -P "${PROJECT_SOURCE_DIR}/cmake/listSuites.cmake"
    VERBATIM)
  if(NOT EXISTS "${list}")
    file(WRITE "${list}" "add_test(${prefix}${program}_has_not_been_built false)\n")
  endif()
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${list}")
endfunction()
