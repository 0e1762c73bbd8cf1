# Reads the dynamic symbol table of LIB: the build data and the public functions are exported,
# the manager's internals are not.
execute_process(COMMAND ${NM} -D -C --defined-only ${LIB}
    RESULT_VARIABLE result OUTPUT_VARIABLE symbols)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${NM} failed on ${LIB}")
endif()

foreach(symbol
        " libovi18n_version\n" " libovi18n_relative_path\n" " libovi18n_build_date\n"
        " fl::i18n::initialize()\n" " fl::i18n::change_global_locale(fl::i18n::OvLocale const&)\n"
        " fl::i18n::OvLocale::global()\n" " fl::i18n::OvLcUtil::getLcStatus()\n"
        " fl::i18n::lcmgmt::parse_locale_name(")
    string(FIND "${symbols}" "${symbol}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "not exported:${symbol}")
    endif()
endforeach()

foreach(symbol "manager_context" "run_startup_sequence" "switch_to_english_messages")
    string(FIND "${symbols}" "${symbol}" at)
    if(NOT at EQUAL -1)
        message(FATAL_ERROR "internal symbol exported: ${symbol}")
    endif()
endforeach()
