# What the desktop adapter is made of: for this project's build and, installed, for those who link it.
# Sets qv_desktop_missing to what was not found.
include(${CMAKE_CURRENT_LIST_DIR}/QvFind.cmake)

set(qv_desktop_missing "")
# Hosts that add this project as a folder link these through the adapter.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
qv_find(qv_desktop_missing Qt6Widgets qt6-base-dev 6.4)
qv_find(qv_desktop_missing Qt6DBus qt6-base-dev 6.4)
qv_find(qv_desktop_missing Qt6UiTools qt6-tools-dev 6.4)
qv_find_by_pkg_config(qv_desktop_missing gmime-3.0 libgmime-3.0-dev)
qv_find(qv_desktop_missing ICU libicu-dev COMPONENTS i18n uc)
qv_find(qv_desktop_missing SQLite3 libsqlite3-dev)
unset(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL)
