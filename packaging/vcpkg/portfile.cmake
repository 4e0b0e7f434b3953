# An overlay port: the sources are those of the tree that it lies in.
cmake_path(SET SOURCE_PATH NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../..")

set(desktop OFF)
if("desktop" IN_LIST FEATURES)
  set(desktop ON)
endif()
vcpkg_cmake_configure(SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS -DQV_COMMONS_DESKTOP=${desktop} -DQV_COMMONS_TESTS=OFF -DQV_COMMONS_EXAMPLES=OFF
          -DQV_COMMONS_BENCH=OFF -DQV_COMMONS_FUZZ=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(CONFIG_PATH lib/cmake/qv_commons)
vcpkg_fixup_pkgconfig()
file(REMOVE_RECURSE "${CURRENT_PACKAGES_DIR}/debug/include" "${CURRENT_PACKAGES_DIR}/debug/share")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
