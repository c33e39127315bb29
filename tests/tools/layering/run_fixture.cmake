# Runs the layering check on a fixture tree and compares what it reports with the tree's
# expected.txt, line for line: a rule that stops firing, a line number that drifts and a report the
# tree does not deserve all fail. The check must fail exactly when expected.txt lists something.
#
#   cmake -DCHECKER=<check_layering.cmake> -DFIXTURE=<tree> -DQT_INCLUDE_DIR=<dir> -P run_fixture.cmake

execute_process(
  COMMAND ${CMAKE_COMMAND} -DROOT=${FIXTURE} -DQT_INCLUDE_DIR=${QT_INCLUDE_DIR} -P ${CHECKER}
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)

string(REGEX MATCHALL "[^\n]+:[0-9]+: [^\n]+" reported "${output}")
file(STRINGS ${FIXTURE}/expected.txt expected)

if(NOT reported STREQUAL expected)
  string(REPLACE ";" "\n  " reported "${reported}")
  string(REPLACE ";" "\n  " expected "${expected}")
  message(FATAL_ERROR "reported:\n  ${reported}\nexpected:\n  ${expected}\nfull output:\n${output}")
endif()
if(expected AND result EQUAL 0)
  message(FATAL_ERROR "the check reported includes that break the layering but succeeded")
endif()
if(NOT expected AND NOT result EQUAL 0)
  message(FATAL_ERROR "the check failed on a tree that keeps the layering:\n${output}")
endif()
