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
