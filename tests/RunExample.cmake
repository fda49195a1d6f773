# Runs COMMAND, and fails unless it prints what the comments in SOURCE say.
file(STRINGS "${SOURCE}" comments REGEX "^ *// prints: " ENCODING UTF-8)
list(TRANSFORM comments REPLACE "^ *// prints: " "")
list(JOIN comments "\n" expected)
string(APPEND expected "\n")

execute_process(COMMAND ${COMMAND}
  OUTPUT_VARIABLE printed ERROR_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
# Line ends and the encoding of letters beyond ASCII are the system's.
string(REPLACE "\r" "" printed "${printed}")
string(REGEX REPLACE "[^\n -~]+" "?" comparable_expected "${expected}")
string(REGEX REPLACE "[^\n -~]+" "?" comparable_printed "${printed}")

if(NOT comments OR NOT comparable_printed STREQUAL comparable_expected)
  message("These lines were expected:\n${expected}\nThese were printed:\n${printed}")
  message(FATAL_ERROR "The comments in ${SOURCE} say something else")
endif()
