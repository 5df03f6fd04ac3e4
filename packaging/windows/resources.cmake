# What a program for Windows carries inside: icon, version and manifest. Elsewhere nothing is done.
if(NOT WIN32)
    function(add_windows_resources)
    endfunction()
    return()
endif()

find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
enable_language(RC)

# Nothing there draws SVG: each picture of the forms is drawn by the build, at the sizes that screens ask for.
set(picture_folder ${CMAKE_SOURCE_DIR}/src/forms/images)
set(drawn_folder ${CMAKE_BINARY_DIR}/pictures)
file(MAKE_DIRECTORY ${drawn_folder})
file(GLOB pictures CONFIGURE_DEPENDS ${picture_folder}/*.svg)
set(drawn_files)
set(icon_files)
set(resource_lines)
foreach(picture IN LISTS pictures)
    get_filename_component(name ${picture} NAME_WE)
    foreach(size 16 20 24 32 40 48 64 128 256)
        set(file ${drawn_folder}/${name}-${size}.png)
        add_custom_command(OUTPUT ${file} COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${file} ${picture}
            DEPENDS ${picture} VERBATIM)
        list(APPEND drawn_files ${file})
        string(APPEND resource_lines "        <file>${name}-${size}.png</file>\n")
        if(name STREQUAL "vantorra" AND NOT size EQUAL 256)
            list(APPEND icon_files ${file})
        endif()
    endforeach()
endforeach()

# Takes the place of forms.qrc, and so has its name.
file(CONFIGURE OUTPUT ${drawn_folder}/forms.qrc @ONLY
    CONTENT "<RCC>\n    <qresource prefix=\"/images\">\n@resource_lines@    </qresource>\n</RCC>\n")
set(drawn_pictures ${CMAKE_BINARY_DIR}/pictures/forms_qrc.cpp)
add_custom_command(OUTPUT ${drawn_pictures} DEPENDS ${drawn_folder}/forms.qrc ${drawn_files} VERBATIM
    COMMAND Qt6::rcc --name forms --output ${drawn_pictures} ${drawn_folder}/forms.qrc)
set_source_files_properties(${drawn_pictures} PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON GENERATED ON)

set(VANTORRA_ICON ${drawn_folder}/vantorra.ico)
set(large_icon ${drawn_folder}/vantorra-256.png)
add_custom_command(OUTPUT ${VANTORRA_ICON} DEPENDS ${icon_files} ${large_icon} VERBATIM
    COMMAND ${ICOTOOL} --create --output=${VANTORRA_ICON} ${icon_files} --raw=${large_icon})

# `description` is what the system shows of the program's file.
function(add_windows_resources program description)
    set(VANTORRA_PROGRAM_NAME ${program})
    set(VANTORRA_PROGRAM_DESCRIPTION ${description})
    set(VANTORRA_MANIFEST ${CMAKE_SOURCE_DIR}/packaging/windows/vantorra.manifest)
    file(STRINGS ${CMAKE_SOURCE_DIR}/LICENSE copyright REGEX "^Copyright")
    string(REPLACE "Copyright (c)" "Copyright" VANTORRA_COPYRIGHT "${copyright}")
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/vantorra.rc.in ${script} @ONLY)
    target_sources(${program} PRIVATE ${script})
    set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${VANTORRA_ICON};${VANTORRA_MANIFEST}")
endfunction()
