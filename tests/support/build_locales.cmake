# Compiles the locales the tests need into OUT with localedef; a locale already there is kept.
# Each entry: directory name|source definition|charmap.
set(locales
    "de_DE.UTF-8|de_DE|UTF-8"
    "fr_FR.UTF-8|fr_FR|UTF-8"
    "en_US.UTF-8|en_US|UTF-8"
    "ja_JP.EUC-JP|ja_JP|EUC-JP"
    "de_DE.ISO-8859-15@euro|de_DE@euro|ISO-8859-15"
    # A name the locale database cannot resolve: "qq" is no language it knows.
    "qq_QQ.UTF-8|en_US|UTF-8")

find_program(LOCALEDEF localedef)
if(NOT LOCALEDEF)
    message(FATAL_ERROR "localedef not found: install the locales package")
endif()
file(MAKE_DIRECTORY "${OUT}")
foreach(entry IN LISTS locales)
    string(REPLACE "|" ";" fields "${entry}")
    list(GET fields 0 name)
    list(GET fields 1 source)
    list(GET fields 2 charmap)
    if(EXISTS "${OUT}/${name}/LC_CTYPE")
        continue()
    endif()
    execute_process(
        COMMAND ${LOCALEDEF} --no-archive -c --quiet -i ${source} -f ${charmap} "${OUT}/${name}"
        RESULT_VARIABLE result ERROR_VARIABLE errors)
    # -c makes localedef write the locale despite warnings; it then exits with 1.
    if(NOT EXISTS "${OUT}/${name}/LC_CTYPE")
        message(FATAL_ERROR "localedef failed for ${name} (${result}): ${errors}")
    endif()
    message(STATUS "built ${name}")
endforeach()
