# Run behind the build of a test program: writes what ctest reads, a test for each of the program's suites. A process for
# each case would start ten times as many, and make the same media anew in most of them. EMULATOR is what starts the
# program where this machine can't, LEFT_OUT a file of tests that don't run there.
execute_process(COMMAND ${EMULATOR} "${PROGRAM}" --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY
    TIMEOUT 120)
string(REPLACE "\r" "" listed "${listed}")
string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\." suites "\n${listed}")
set(left_out "")
if(LEFT_OUT)
    file(STRINGS "${LEFT_OUT}" left_out REGEX "^[A-Za-z0-9_/]+\\.[A-Za-z0-9_/]+ - .")
    list(TRANSFORM left_out REPLACE " - .*" "")
endif()
# What takes longest begins first: with the last of it one processor would be idle for a minute.
set(cost 0)
if(PROGRAM MATCHES program_tests)
    set(cost 1)
endif()
set(start ${EMULATOR} ${PROGRAM})
list(JOIN start "]] [[" start)
set(text "")
foreach(suite ${suites})
    string(REGEX REPLACE "[\n.]" "" suite "${suite}")
    set(not ${left_out})
    list(FILTER not INCLUDE REGEX "^${suite}\\.")
    list(JOIN not ":" not)
    if(not)
        string(PREPEND not ":-")
    endif()
    string(APPEND text "add_test([[${suite}]] [[${start}]] [[--gtest_filter=${suite}.*${not}]])\n"
        "set_tests_properties([[${suite}]] PROPERTIES TIMEOUT 600 COST ${cost} WORKING_DIRECTORY [[${FOLDER}]])\n")
endforeach()
file(WRITE "${RESULT}" "${text}")
