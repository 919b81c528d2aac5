# cmake -DSOURCE_DIR=<tree> -DOUTPUT=<header> [-DGIT_EXECUTABLE=<git>] -P SourceRevision.cmake
#
# Writes a header defining LOOKWRIGHT_SOURCE_REVISION as the first seven hex
# characters of the checked-out commit, or "0000000" when the tree is no git
# checkout (a source archive) or git is missing. It runs at every build but rewrites
# the header only when the text changes, so an unchanged revision rebuilds nothing.
set(revision "")
if(GIT_EXECUTABLE)
    execute_process(COMMAND ${GIT_EXECUTABLE} rev-parse --short=7 HEAD
        WORKING_DIRECTORY ${SOURCE_DIR}
        OUTPUT_VARIABLE revision
        RESULT_VARIABLE result
        OUTPUT_STRIP_TRAILING_WHITESPACE
        ERROR_QUIET)
    if(NOT result EQUAL 0)
        set(revision "")
    endif()
endif()
# git lengthens a short name that would be ambiguous; the report wants seven.
if(revision MATCHES "^[0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f][0-9a-f]")
    string(SUBSTRING "${revision}" 0 7 revision)
else()
    set(revision "0000000")
endif()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT
    "#pragma once\n\n#define LOOKWRIGHT_SOURCE_REVISION \"${revision}\"\n")
