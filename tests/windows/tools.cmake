# What the tests run with where the programs are Windows' and this machine isn't: under Wine, which finds the tools in a
# folder of the build's own.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_SOURCE_DIR}/windows/run_under_wine ${CMAKE_BINARY_DIR})

# Where the programs see the host's files.
set(drive "Z:")

# Ahead of all tests and behind them.
set(prepare_wine ${CMAKE_CURRENT_SOURCE_DIR}/windows/prepare_wine ${CMAKE_BINARY_DIR})
add_test(NAME wine_begin COMMAND ${prepare_wine})
add_test(NAME wine_end COMMAND ${prepare_wine} end)
set_tests_properties(wine_begin PROPERTIES FIXTURES_SETUP emulator TIMEOUT 300)
set_tests_properties(wine_end PROPERTIES FIXTURES_CLEANUP emulator TIMEOUT 60)

# Has Wine's host run the shell script that lies beside it.
add_executable(tool_forwarder windows/tool_forwarder.cpp windows/unix_paths.cpp)
target_include_directories(tool_forwarder PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tool_forwarder PRIVATE vantorra_flags)
# No program of the console: Wine would start a second process to hold that.
target_link_options(tool_forwarder PRIVATE -municode -mwindows -s)

# A child that takes its arguments apart by the C run-time, or crashes.
add_executable(test_child windows/test_child.cpp)
target_link_libraries(test_child PRIVATE vantorra_flags)
target_link_options(test_child PRIVATE -municode -s)

# There is no Windows' mkvmerge to be had: the host's stands in for it, and the host's ffmpeg makes the media.
set(tools ${CMAKE_CURRENT_BINARY_DIR}/tools)
find_program(MKVMERGE mkvmerge REQUIRED)
configure_file(windows/mkvmerge.in ${tools}/host/mkvmerge @ONLY FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
find_file(FFPROBE_EXE ffprobe.exe PATHS $ENV{VANTORRA_WINDOWS_NEEDS}/bin NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
# Laid out so that Wine maps it. All of it would be read at each start.
add_custom_command(OUTPUT ${tools}/ffprobe.exe DEPENDS ${FFPROBE_EXE}
    COMMAND ${CMAKE_OBJCOPY} --file-alignment 4096 ${FFPROBE_EXE} ${tools}/ffprobe.exe)
foreach(tool mkvmerge mkvextract mkvtoolnix-gui ffmpeg)
    file(WRITE ${tools}/${tool}.exe.sh "exec ${tool} \"$@\"\n")
    list(APPEND forwarders ${tools}/${tool}.exe)
    add_custom_command(OUTPUT ${tools}/${tool}.exe DEPENDS tool_forwarder
        COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:tool_forwarder> ${tools}/${tool}.exe)
endforeach()
add_custom_target(test_tools DEPENDS ${forwarders} ${tools}/ffprobe.exe)
add_dependencies(test_tools test_child)
