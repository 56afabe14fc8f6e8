# Runs one scenario in a fresh program folder of its own:
# cmake -D CONSOLE=program -D SCRIPT=file.lua -D FOLDER=folder [-D ARGUMENTS=...] -P RunScenario.cmake
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
# A machine without settings of its own, so that every run reads and shows numbers and dates the same way.
set(ENV{LC_ALL} C)
execute_process(COMMAND "${CONSOLE}" --folder "${FOLDER}" "${SCRIPT}" ${ARGUMENTS} WORKING_DIRECTORY "${FOLDER}"
                RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "exit status ${status}")
endif()
