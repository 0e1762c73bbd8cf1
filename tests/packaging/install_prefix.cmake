# Installs the build tree BUILD into a fresh PREFIX, so files left by an earlier run can't hide a
# missing install rule.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX}
    RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()
foreach(file bin/lcdata.xml bin/x64linux/libovi18n.so include/fl/i18n.hpp
        lib/cmake/ovi18n/ovi18nConfig.cmake lib/pkgconfig/ovi18n.pc
        resources/VELMOR/en/legacy_two_part.xml derived/share/resources/VELMOR/catalog_map.xml)
    if(NOT EXISTS ${PREFIX}/${file})
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()

# A consumer compiles against the installed headers without ICU's or expat's: none may include them.
file(GLOB_RECURSE installed_headers ${PREFIX}/include/*)
foreach(header IN LISTS installed_headers)
    file(STRINGS ${header} third_party REGEX "#[ \t]*include[ \t]*[<\"](unicode/|expat)")
    if(third_party)
        message(FATAL_ERROR "${header} includes ICU or expat: ${third_party}")
    endif()
endforeach()
