# lookwright_rendered_resources(<out_var> NAME <rcc name> IMAGES <entry>...)
#
# Each entry is "<svg source>|<width>x<height>|<resource path>", the source
# relative to the project's resources/ folder and the resource path as the code
# names it (":/gui/button/dark_normal.png" is given as "gui/button/dark_normal.png").
# Every PNG is rendered from its SVG by render_svg at build time; the generated
# resource list is compiled by rcc, and the C++ file is returned in <out_var>.
# The code initialises it with Q_INIT_RESOURCE(<rcc name>).
function(lookwright_rendered_resources out_var)
    cmake_parse_arguments(arg "" "NAME" "IMAGES;FILES" ${ARGN})
    set(out_dir ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME})
    set(qrc_text "<RCC>\n  <qresource prefix=\"/\">\n")
    set(outputs)
    foreach(entry IN LISTS arg_IMAGES)
        string(REPLACE "|" ";" parts "${entry}")
        list(GET parts 0 source)
        list(GET parts 1 size)
        list(GET parts 2 alias)
        string(REPLACE "x" ";" size "${size}")
        list(GET size 0 width)
        list(GET size 1 height)
        set(png ${out_dir}/${alias})
        get_filename_component(png_dir ${png} DIRECTORY)
        add_custom_command(OUTPUT ${png}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${png_dir}
            # In sanitized builds the tool is sanitized too, and Qt's offscreen
            # platform leaves a few objects at exit: a build step is no leak check.
            COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
                    $<TARGET_FILE:render_svg> ${PROJECT_SOURCE_DIR}/resources/${source} ${width} ${height} ${png}
            DEPENDS render_svg ${PROJECT_SOURCE_DIR}/resources/${source}
            COMMENT "Rendering ${alias}"
            VERBATIM)
        list(APPEND outputs ${png})
        string(APPEND qrc_text "    <file alias=\"${alias}\">${png}</file>\n")
    endforeach()
    # Files taken as they are (fonts, pages, catalogues): "<absolute path>|<resource path>".
    foreach(entry IN LISTS arg_FILES)
        string(REPLACE "|" ";" parts "${entry}")
        list(GET parts 0 file)
        list(GET parts 1 alias)
        list(APPEND outputs ${file})
        string(APPEND qrc_text "    <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    string(APPEND qrc_text "  </qresource>\n</RCC>\n")
    file(GENERATE OUTPUT ${out_dir}/${arg_NAME}.qrc CONTENT "${qrc_text}")
    set(cpp ${out_dir}/qrc_${arg_NAME}.cpp)
    add_custom_command(OUTPUT ${cpp}
        COMMAND Qt5::rcc --name ${arg_NAME} --output ${cpp} ${out_dir}/${arg_NAME}.qrc
        DEPENDS ${outputs} ${out_dir}/${arg_NAME}.qrc
        COMMENT "Compiling resources ${arg_NAME}"
        VERBATIM)
    set(${out_var} ${cpp} PARENT_SCOPE)
endfunction()
