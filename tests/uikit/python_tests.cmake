# Checks of the iOS side that need neither a device nor its SDK, in Debian's own Python; they skip,
# with the package's name, where something they need is missing.
foreach(name IN ITEMS privacy_manifest_test resource_bundle_test packaging_test
                      xib_format_test xib_references_test xib_layout_test xib_pictures_test
                      xib_texts_test xib_languages_test ios_compile_test ios_host_test platform_names_test)
  add_test(NAME uikit.${name} COMMAND /usr/bin/python3 ${CMAKE_CURRENT_LIST_DIR}/${name}.py)
  set_tests_properties(uikit.${name} PROPERTIES LABELS uikit SKIP_RETURN_CODE 77 TIMEOUT 1800
    ENVIRONMENT "PYTHONDONTWRITEBYTECODE=1;QV_OBJC_HEADERS=${PROJECT_BINARY_DIR}/objc_compat")
endforeach()
