# Runs TOOL with ARGS (separated by "|", which survives the trip through CTest) and checks the exit
# code is EXPECTED_EXIT, that standard output and error together match OUTPUT when given, and
# that a failure says what went wrong on exactly one line of standard error, with nothing on
# standard output.
string(REPLACE "|" ";" ARGS "${ARGS}")
execute_process(COMMAND ${TOOL} ${ARGS}
    RESULT_VARIABLE exit_code OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT exit_code STREQUAL EXPECTED_EXIT)
    message(FATAL_ERROR "'ovi18n ${ARGS}' exited with ${exit_code}, expected ${EXPECTED_EXIT}\n${err}")
endif()
if(DEFINED OUTPUT AND NOT "${out}${err}" MATCHES "${OUTPUT}")
    message(FATAL_ERROR "'ovi18n ${ARGS}' printed no match for '${OUTPUT}':\n${out}${err}")
endif()
if(NOT EXPECTED_EXIT STREQUAL "0")
    string(REGEX MATCHALL "\n" newlines "${err}")
    list(LENGTH newlines lines)
    if(NOT lines EQUAL 1 OR NOT err MATCHES "^ovi18n: ")
        message(FATAL_ERROR "expected one line starting 'ovi18n: ' on stderr, got:\n${err}")
    endif()
    if(NOT out STREQUAL "")
        message(FATAL_ERROR "expected no standard output, got:\n${out}")
    endif()
endif()
