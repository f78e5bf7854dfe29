# Included by library/CMakeLists.txt, so that the generated files belong to the library's
# directory.
#
# What the library carries in its resources: the string tables.

qt_add_resources(ZARSystem zarsys_strings
    PREFIX "/strings"
    BASE "${ZARSYS_RESOURCES_DIR}/strings"
    FILES
        "${ZARSYS_RESOURCES_DIR}/strings/en_US/ZARSystem.json"
        "${ZARSYS_RESOURCES_DIR}/strings/default/ZARSystem.json"
        "${ZARSYS_RESOURCES_DIR}/strings/de_DE/ZARSystem.json")
