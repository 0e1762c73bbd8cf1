# Runs 'TOOL locale --json', checks that python3's json.tool accepts the output, and that the
# report has the shape consumers rely on.
execute_process(COMMAND ${TOOL} locale --json
    RESULT_VARIABLE exit_code OUTPUT_VARIABLE json ERROR_VARIABLE err)
if(NOT exit_code STREQUAL "0")
    message(FATAL_ERROR "'ovi18n locale --json' exited with ${exit_code}\n${err}")
endif()

execute_process(COMMAND ${TOOL} locale --json COMMAND ${PYTHON} -m json.tool
    RESULTS_VARIABLE results OUTPUT_QUIET ERROR_VARIABLE err)
if(NOT results STREQUAL "0;0")
    message(FATAL_ERROR "json.tool rejected the output (${results}):\n${err}\n${json}")
endif()

function(expect_type type)
    string(JSON actual ERROR_VARIABLE error TYPE "${json}" ${ARGN})
    if(error OR NOT actual STREQUAL type)
        string(REPLACE ";" "." path "${ARGN}")
        message(FATAL_ERROR "${path}: expected ${type}, got '${actual}' ${error}\n${json}")
    endif()
endfunction()

expect_type(NUMBER status)
expect_type(STRING status_message)
expect_type(STRING warning_message)
expect_type(BOOLEAN l10n_resource_enabled)
foreach(locale classic system global)
    expect_type(STRING ${locale} encoding)
    expect_type(STRING ${locale} terminal_encoding)
    foreach(category ctype collate time numeric monetary messages)
        foreach(field name modifier language region)
            expect_type(STRING ${locale} categories ${category} ${field})
        endforeach()
    endforeach()
endforeach()

# The classic locale never changes, so its values can be checked exactly.
string(JSON messages GET "${json}" classic categories messages name)
string(JSON ctype GET "${json}" classic categories ctype name)
string(JSON encoding GET "${json}" classic encoding)
if(NOT messages STREQUAL "en_US" OR NOT ctype STREQUAL "en_US_POSIX" OR NOT encoding STREQUAL "US-ASCII")
    message(FATAL_ERROR "unexpected classic locale: ${ctype} ${messages} ${encoding}")
endif()
