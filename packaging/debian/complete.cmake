# Run by cpack when the files of each package lie in their folders: adds what Debian wants in every
# package, the licence and the list of changes, and compresses what Debian has compressed.
get_filename_component(source ${CMAKE_CURRENT_LIST_DIR}/../.. ABSOLUTE)

# The list of changes in Debian's form: each "## VERSION (DATE)" of ours is an entry. Those of one day are
# a minute apart, for each has to be later than the one before.
function(write_changes file)
    file(STRINGS ${source}/CHANGELOG.md heads REGEX "^## ")
    file(WRITE ${file} "")
    list(LENGTH heads minute)
    foreach(head IN LISTS heads)
        math(EXPR minute "${minute} - 1")
        string(REGEX MATCH "^## ([0-9.]+) \\((.*)\\)" matched "${head}")
        set(version ${CMAKE_MATCH_1})
        set(when ${CMAKE_MATCH_2})
        if(when MATCHES "^[0-9-]+$")
            set(when "${when} 0:${minute}")
        else()
            set(when "@$ENV{SOURCE_DATE_EPOCH}")
        endif()
        execute_process(COMMAND date -u -d ${when} "+%a, %d %b %Y %H:%M:%S +0000"
            OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        file(APPEND ${file} "kulgui (${version}-1) unstable; urgency=medium\n\n"
            "  * New version: changelog.gz says what is new.\n\n"
            " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n\n")
    endforeach()
endfunction()

set(ENV{LC_ALL} C)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} prefix)
    set(package ${CPACK_DEBIAN_${prefix}_PACKAGE_NAME})
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share)
    set(documents ${folder}/doc/${package})
    file(MAKE_DIRECTORY ${documents})
    execute_process(COMMAND install -m 644 ${CMAKE_CURRENT_LIST_DIR}/copyright ${documents}/copyright
        COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND install -m 644 ${source}/CHANGELOG.md ${documents}/changelog
        COMMAND_ERROR_IS_FATAL ANY)
    write_changes(${documents}/changelog.Debian)
    file(REMOVE ${documents}/LICENSE ${documents}/CHANGELOG.md)
    # Without the time: the same packages whenever they are made.
    file(GLOB_RECURSE pages ${folder}/man/man*/*)
    execute_process(COMMAND gzip -9nf ${documents}/changelog ${documents}/changelog.Debian ${pages}
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()
