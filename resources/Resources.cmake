# Included by library/CMakeLists.txt, so that the generated files belong to the library's
# directory.
#
# What the library carries in its resources: the string tables, its own translation catalogues
# (built by lrelease from the .ts sources here) and Qt's base catalogues of the languages the SDK
# ships, taken from the Qt installation at build time.

find_package(Qt6 REQUIRED COMPONENTS LinguistTools)

# The languages of the library's own catalogue, ZARSystem-<locale>.qm.
set(ZARSYS_TRANSLATION_LOCALES de_DE es_ES fr_FR it_IT ja_JP ko_KR pl_PL pt_BR tr_TR zh_CN
    CACHE INTERNAL "")
# The languages whose Qt base catalogue is shipped as qtbase-<locale>.qm.
set(ZARSYS_QT_CATALOGUE_LOCALES de_DE es_ES fr_FR it_IT ja_JP zh_CN)

set(ts_files)
foreach(locale IN LISTS ZARSYS_TRANSLATION_LOCALES)
    list(APPEND ts_files "${ZARSYS_RESOURCES_DIR}/translations/ZARSystem-${locale}.ts")
endforeach()
set(ZARSYS_TS_FILES ${ts_files} CACHE INTERNAL "")
set(qm_dir "${CMAKE_CURRENT_BINARY_DIR}/translations")
set_source_files_properties(${ts_files} PROPERTIES OUTPUT_LOCATION "${qm_dir}")
qt_add_lrelease(ZARSystem
    TS_FILES ${ts_files}
    OPTIONS -silent
    QM_FILES_OUTPUT_VARIABLE library_qm_files)

# Qt's catalogues are named by language alone where Qt has one catalogue per language.
if(NOT ZARSYS_QT_TRANSLATIONS_DIR)
    get_target_property(qtpaths Qt6::qtpaths IMPORTED_LOCATION)
    execute_process(COMMAND "${qtpaths}" --query QT_INSTALL_TRANSLATIONS
        OUTPUT_VARIABLE qt_translations OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(ZARSYS_QT_TRANSLATIONS_DIR "${qt_translations}" CACHE PATH
        "Folder of Qt's own translation catalogues (qtbase_*.qm)")
endif()
set(qt_qm_files)
foreach(locale IN LISTS ZARSYS_QT_CATALOGUE_LOCALES)
    string(REGEX REPLACE "_.*" "" language "${locale}")
    set(source "${ZARSYS_QT_TRANSLATIONS_DIR}/qtbase_${locale}.qm")
    if(NOT EXISTS "${source}")
        set(source "${ZARSYS_QT_TRANSLATIONS_DIR}/qtbase_${language}.qm")
    endif()
    if(NOT EXISTS "${source}")
        message(FATAL_ERROR "Qt's catalogue for ${locale} is missing in ${ZARSYS_QT_TRANSLATIONS_DIR}; "
            "install Qt's translations (Debian: qt6-translations-l10n)")
    endif()
    set(target "${qm_dir}/qtbase-${locale}.qm")
    add_custom_command(OUTPUT "${target}"
        COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${target}"
        DEPENDS "${source}"
        COMMENT "Taking Qt's catalogue for ${locale}")
    list(APPEND qt_qm_files "${target}")
endforeach()

qt_add_resources(ZARSystem zarsys_translations
    PREFIX "/localization/translations"
    BASE "${qm_dir}"
    FILES ${library_qm_files} ${qt_qm_files})

qt_add_resources(ZARSystem zarsys_strings
    PREFIX "/strings"
    BASE "${ZARSYS_RESOURCES_DIR}/strings"
    FILES
        "${ZARSYS_RESOURCES_DIR}/strings/en_US/ZARSystem.json"
        "${ZARSYS_RESOURCES_DIR}/strings/default/ZARSystem.json"
        "${ZARSYS_RESOURCES_DIR}/strings/de_DE/ZARSystem.json")

# The prefix of Qt's configuration, for Windows, where start-up writes the library's folder
# over the run of 'X' and registers the result: a compiled resource file of its own, held
# uncompressed in the library's resources so that the run can be found and patched in place.
# The run leaves room for a folder of 1022 characters, a line feed and a ';'.
string(REPEAT "X" 1024 qt_conf_placeholder)
set(qt_conf_dir "${CMAKE_CURRENT_BINARY_DIR}/qtconf")
file(CONFIGURE OUTPUT "${qt_conf_dir}/qt.conf"
    CONTENT "[Paths]\nPrefix=${qt_conf_placeholder}\n")
file(CONFIGURE OUTPUT "${qt_conf_dir}/qt.conf.qrc"
    CONTENT "<RCC><qresource prefix=\"/qt/etc\"><file>qt.conf</file></qresource></RCC>\n")
add_custom_command(OUTPUT "${qt_conf_dir}/qt.conf.rcc"
    COMMAND Qt6::rcc --binary --no-compress -o qt.conf.rcc qt.conf.qrc
    WORKING_DIRECTORY "${qt_conf_dir}"
    DEPENDS "${qt_conf_dir}/qt.conf" "${qt_conf_dir}/qt.conf.qrc"
    COMMENT "Compiling the qt.conf resource")
qt_add_resources(ZARSystem zarsys_qtconf
    PREFIX "/"
    BASE "${qt_conf_dir}"
    FILES "${qt_conf_dir}/qt.conf.rcc")

# The icon theme "loom-default" in a resource file of its own, loom-default.rcc, which start-up
# registers from Resources/ beside the library (or under the resource prefix). It is placed
# there in the build tree too, so that the library runs from the build tree as installed.
set(icon_theme_dir "${ZARSYS_RESOURCES_DIR}/icons/loom-default")
set(icon_theme_files
    index.theme
    images/button-collapse-down.png
    images/button-collapse-up.png
    images/nesting-arrow-selected.png
    images/nesting-arrow-unselected.png)
set(icon_theme_qrc "<RCC><qresource prefix=\"/icons/loom-default\">\n")
set(icon_theme_sources)
foreach(file IN LISTS icon_theme_files)
    string(APPEND icon_theme_qrc "<file alias=\"${file}\">${icon_theme_dir}/${file}</file>\n")
    list(APPEND icon_theme_sources "${icon_theme_dir}/${file}")
endforeach()
string(APPEND icon_theme_qrc "</qresource></RCC>\n")
file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/loom-default.qrc" CONTENT "${icon_theme_qrc}")

set(ZARSYS_ICON_THEME_FILE "${ZARSYS_LIBRARY_OUTPUT_DIR}/Resources/loom-default.rcc")
# rcc writes into an existing folder only; Ninja makes the folders of its outputs, make does not.
file(MAKE_DIRECTORY "${ZARSYS_LIBRARY_OUTPUT_DIR}/Resources")
add_custom_command(OUTPUT "${ZARSYS_ICON_THEME_FILE}"
    COMMAND Qt6::rcc --binary -o "${ZARSYS_ICON_THEME_FILE}"
        "${CMAKE_CURRENT_BINARY_DIR}/loom-default.qrc"
    DEPENDS ${icon_theme_sources} "${CMAKE_CURRENT_BINARY_DIR}/loom-default.qrc"
    COMMENT "Compiling the icon theme loom-default")
add_custom_target(zarsys_icon_theme DEPENDS "${ZARSYS_ICON_THEME_FILE}")
add_dependencies(ZARSystem zarsys_icon_theme)

if(WIN32)
    set(icon_theme_destination "${CMAKE_INSTALL_BINDIR}/Resources")
else()
    set(icon_theme_destination "${CMAKE_INSTALL_LIBDIR}/Resources")
endif()
install(FILES "${ZARSYS_ICON_THEME_FILE}" DESTINATION "${icon_theme_destination}")
