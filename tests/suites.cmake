# Run behind the build of a test program: writes what ctest reads, a test for each of the program's suites. A process for
# each case would start ten times as many, and make the same media anew in most of them.
execute_process(COMMAND "${PROGRAM}" --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY TIMEOUT 60)
string(REGEX MATCHALL "\n[A-Za-z0-9_/]+\\." suites "\n${listed}")
# What takes longest begins first: with the last of it one processor would be idle for a minute.
set(cost 0)
if(PROGRAM MATCHES program_tests)
    set(cost 1)
endif()
set(text "")
foreach(suite ${suites})
    string(REGEX REPLACE "[\n.]" "" suite "${suite}")
    string(APPEND text "add_test([[${suite}]] [[${PROGRAM}]] [[--gtest_filter=${suite}.*]])\n"
        "set_tests_properties([[${suite}]] PROPERTIES TIMEOUT 600 COST ${cost} WORKING_DIRECTORY [[${FOLDER}]])\n")
endforeach()
file(WRITE "${RESULT}" "${text}")
