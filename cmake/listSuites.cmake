# Asks a test program for its suites and writes a test for each into the file `list`; see QuorvelTests.cmake.
execute_process(COMMAND "${program}" --gtest_list_tests OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\.[ \n]" suites "${listing}")
set(tests "")
foreach(suite IN LISTS suites)
  string(REGEX MATCH "[A-Za-z0-9_/]+" suite "${suite}")
  string(APPEND tests "add_test(${prefix}${suite} \"${program}\" \"--gtest_filter=${suite}.*\")\n"
                      "set_tests_properties(${prefix}${suite} PROPERTIES ${properties})\n")
endforeach()
file(WRITE "${list}" "${tests}")
