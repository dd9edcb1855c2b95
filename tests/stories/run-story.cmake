# Runs the script STORY through DRIVER and compares its output, including errors and a failing exit status, with the
# .expected file next to it. If the environment variable UPDATE_STORIES is set, writes that file instead.
string(REGEX REPLACE "\\.script$" ".expected" expected_file "${STORY}")
execute_process(COMMAND "${DRIVER}" INPUT_FILE "${STORY}" OUTPUT_VARIABLE printed ERROR_VARIABLE errors
                RESULT_VARIABLE status)
string(APPEND printed "${errors}")
if(NOT status EQUAL 0)
    string(APPEND printed "exit status ${status}\n")
endif()
if(DEFINED ENV{UPDATE_STORIES})
    file(WRITE "${expected_file}" "${printed}")
    return()
endif()
file(READ "${expected_file}" expected)
if(NOT printed STREQUAL expected)
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/printed.txt" "${printed}")
    execute_process(COMMAND diff -u "${expected_file}" "${CMAKE_CURRENT_BINARY_DIR}/printed.txt")
    message(FATAL_ERROR "The story ${STORY} has another end than expected (- expected, + printed)")
endif()
