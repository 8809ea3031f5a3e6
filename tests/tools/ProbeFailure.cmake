# Runs the probe on a missing file, a side file that is no media and a good file: each bad path
# must give exactly one line on the standard error, the good one must still be probed, and the
# exit status must be 1.
execute_process(
  COMMAND ${PROBE} ${MEDIA}/missing.mov ${MEDIA}/recording/dirtyrect.dat ${MEDIA}/still.png
  RESULT_VARIABLE status
  OUTPUT_VARIABLE out
  ERROR_VARIABLE err)
if(NOT status EQUAL 1)
  message(FATAL_ERROR "exit status ${status}, expected 1\n${err}")
endif()
# The reader's own text follows the path; which one it is depends on how far the file was read.
string(REGEX MATCHALL "[^\n]*\n" lines "${err}")
list(LENGTH lines count)
if(NOT count EQUAL 2)
  message(FATAL_ERROR "standard error holds ${count} lines, expected 2:\n${err}")
endif()
list(GET lines 0 first)
list(GET lines 1 second)
string(FIND "${first}" "zml-probe: ${MEDIA}/missing.mov: IOException: " at)
if(NOT at EQUAL 0)
  message(FATAL_ERROR "first line: ${first}")
endif()
string(FIND "${second}" "zml-probe: ${MEDIA}/recording/dirtyrect.dat: IOException: " at)
if(NOT at EQUAL 0)
  message(FATAL_ERROR "second line: ${second}")
endif()
string(FIND "${out}" "== ${MEDIA}/still.png\n" found)
if(found EQUAL -1)
  message(FATAL_ERROR "the good file was not probed:\n${out}")
endif()
