# Runs COMMAND, and fails unless it prints what the comments in SOURCE say.
file(STRINGS "${SOURCE}" expected REGEX "^ *// prints: " ENCODING UTF-8)
list(TRANSFORM expected REPLACE "^ *// prints: " "")
execute_process(COMMAND ${COMMAND}
  OUTPUT_VARIABLE printed ERROR_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\r|\n+$" "" printed "${printed}")
string(REPLACE ";" "\\;" printed "${printed}")
string(REPLACE "\n" ";" printed "${printed}")

foreach(line other IN ZIP_LISTS expected printed)
  # The encoding of letters beyond ASCII is the system's.
  string(REGEX REPLACE "[^ -~]+" "?" comparable "${line}")
  string(REGEX REPLACE "[^ -~]+" "?" comparable_other "${other}")
  if(NOT comparable STREQUAL comparable_other)
    message(FATAL_ERROR "${SOURCE} says:\n${line}\nThis was printed:\n${other}")
  endif()
endforeach()
if(NOT expected)
  message(FATAL_ERROR "${SOURCE} has no comment \"prints:\"")
endif()
