# Runs one scenario in a fresh program folder of its own:
# cmake -D CONSOLE=program -D FILL=program -D SCRIPT=file.lua -D FOLDER=folder [-D ARGUMENTS=...]
# -P RunScenario.cmake
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
# "FILLED WITH n SALES" in a script's head comment: the folder holds a made-up shop of that size.
file(STRINGS "${SCRIPT}" filled REGEX "^--.* FILLED WITH [0-9]+ SALES" LIMIT_COUNT 1)
if(filled)
  string(REGEX REPLACE ".* FILLED WITH ([0-9]+) SALES.*" "\\1" sales "${filled}")
  execute_process(COMMAND "${FILL}" "${FOLDER}" ${sales} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "the shop was not filled")
  endif()
endif()
# A machine without settings of its own, so that every run reads and shows numbers and dates the same way.
set(ENV{LC_ALL} C)
execute_process(COMMAND "${CONSOLE}" --folder "${FOLDER}" "${SCRIPT}" ${ARGUMENTS} WORKING_DIRECTORY "${FOLDER}"
                RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "exit status ${status}")
endif()
