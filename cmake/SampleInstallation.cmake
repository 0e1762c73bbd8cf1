# The sample installation (catalogs and catalog maps) goes next to bin/ in the build tree, as it
# lies in an installation, so the tool and the tests find it from a build. The copy is made
# afresh whenever a file changes, is added or is removed, so no stale catalog survives.
set(OVI18N_SAMPLE_DIRS resources derived)
file(GLOB_RECURSE sample_files CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/data/resources/* ${PROJECT_SOURCE_DIR}/data/derived/*)
# Rewritten only when the list changes: a removed file then also triggers the copy.
set(sample_list ${PROJECT_BINARY_DIR}/sample_installation.list)
string(REPLACE ";" "\n" sample_list_content "${sample_files}")
file(CONFIGURE OUTPUT ${sample_list} CONTENT "${sample_list_content}\n")

set(sample_commands)
foreach(dir IN LISTS OVI18N_SAMPLE_DIRS)
    list(APPEND sample_commands
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${PROJECT_BINARY_DIR}/${dir}
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data/${dir}
                ${PROJECT_BINARY_DIR}/${dir})
endforeach()
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/sample_installation.stamp
    ${sample_commands}
    COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/sample_installation.stamp
    DEPENDS ${sample_files} ${sample_list}
    COMMENT "Copying the sample installation into the build tree")
add_custom_target(ovi18n_sample_installation ALL
    DEPENDS ${PROJECT_BINARY_DIR}/sample_installation.stamp)

foreach(dir IN LISTS OVI18N_SAMPLE_DIRS)
    install(DIRECTORY data/${dir}/ DESTINATION ${dir})
endforeach()
