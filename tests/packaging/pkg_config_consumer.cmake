# Builds the consumer with nothing but what pkg-config says about the installed ovi18n.pc, then
# runs it.
set(ENV{PKG_CONFIG_PATH} ${PREFIX}/lib/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs ovi18n
    RESULT_VARIABLE result OUTPUT_VARIABLE flags ERROR_VARIABLE err OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "pkg-config failed: ${err}")
endif()
# The .pc file finds the prefix from its own place, so the paths may hold "..".
string(REGEX MATCH "-I([^ ]+)" ignored "${flags}")
file(REAL_PATH "${CMAKE_MATCH_1}" include_dir)
string(REGEX MATCH "-L([^ ]+)" ignored "${flags}")
file(REAL_PATH "${CMAKE_MATCH_1}" library_dir)
file(REAL_PATH "${PREFIX}" PREFIX)
if(NOT include_dir STREQUAL "${PREFIX}/include" OR NOT library_dir STREQUAL "${PREFIX}/bin/x64linux")
    message(FATAL_ERROR "pkg-config doesn't point into ${PREFIX}: ${flags}")
endif()
if(flags MATCHES "-std=|rpath")
    message(FATAL_ERROR "pkg-config forces a language level or a run path: ${flags}")
endif()
separate_arguments(flags UNIX_COMMAND "${flags}")
file(MAKE_DIRECTORY ${WORK})
# The .pc file forces no language level and no run path: the consumer picks both.
execute_process(COMMAND ${CXX} -std=c++17 ${SOURCE} -o ${WORK}/consumer ${flags}
    RESULT_VARIABLE result ERROR_VARIABLE err)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "building with pkg-config flags failed:\n${err}")
endif()
set(ENV{LD_LIBRARY_PATH} ${library_dir})
execute_process(COMMAND ${WORK}/consumer RESULT_VARIABLE result OUTPUT_VARIABLE out)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the consumer failed (${result}): ${out}")
endif()
