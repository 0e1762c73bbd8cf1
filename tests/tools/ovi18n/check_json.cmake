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
expect_type(OBJECT environment before)
expect_type(OBJECT environment after)
expect_type(STRING found XpgEncoding)
expect_type(ARRAY found ErrorEvents)
expect_type(ARRAY database warnings)
expect_type(STRING c_library codeset)
expect_type(ARRAY messages_fallback)
foreach(field default_locale default_converter)
    expect_type(STRING icu ${field})
endforeach()
foreach(field language region resource_language resource_region format_language format_region
        file_encoding)
    expect_type(STRING javavm ${field})
endforeach()
foreach(locale classic system global)
    foreach(field encoding terminal_encoding terminal_input_encoding terminal_output_encoding
            jvm_encoding paper_size unit_system)
        expect_type(STRING ${locale} ${field})
    endforeach()
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
