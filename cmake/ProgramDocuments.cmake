# lookwright_program_documents(<out_var>)
#
# The program's help pages, its tutorial and manual, and its German catalogue, as
# "<file>|<resource path>" entries for lookwright_rendered_resources(... FILES ...).
# The catalogue is compiled from resources/translations/de.ts by lrelease and the
# manual rendered from its HTML source to PDF by render_manual, both at build time
# and in the calling directory, so that the resource compiler there depends on them.
function(lookwright_program_documents out_var)
    set(help_dir ${PROJECT_SOURCE_DIR}/resources/help)
    set(entries)
    foreach(lang en de)
        list(APPEND entries
            "${help_dir}/index_${lang}.html|help/index_${lang}.html"
            "${help_dir}/tutorial_${lang}.html|help/tutorial_${lang}.html")
        set(pdf ${CMAKE_CURRENT_BINARY_DIR}/help/manual_${lang}.pdf)
        add_custom_command(OUTPUT ${pdf}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/help
            # Qt's offscreen platform leaks at exit; a sanitized build must not stop on it.
            COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
                    $<TARGET_FILE:render_manual> ${help_dir}/manual_${lang}.html ${pdf}
            DEPENDS render_manual ${help_dir}/manual_${lang}.html
            COMMENT "Rendering the manual (${lang})"
            VERBATIM)
        list(APPEND entries "${pdf}|help/manual_${lang}.pdf")
    endforeach()
    qt5_add_translation(catalogue ${PROJECT_SOURCE_DIR}/resources/translations/de.ts)
    list(APPEND entries "${catalogue}|translations/de.qm")
    set(${out_var} ${entries} PARENT_SCOPE)
endfunction()
