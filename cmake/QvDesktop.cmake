# Whether the desktop adapter is built, and what it is made of.
#
# Sets QV_COMMONS_HAVE_DESKTOP. QV_COMMONS_DESKTOP=AUTO goes without the adapter where a package is
# missing and says which; ON makes that an error.

set(QV_COMMONS_HAVE_DESKTOP OFF)
if(NOT QV_COMMONS_DESKTOP)
  return()
endif()

# Hosts that add this project as a folder link these through the adapter.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
set(missing "")
foreach(module Widgets UiTools DBus)
  find_package(Qt6${module} 6.4 QUIET)
  if(NOT Qt6${module}_FOUND)
    list(APPEND missing "Qt6 ${module}")
  endif()
endforeach()

find_package(PkgConfig QUIET)
foreach(package gmime-3.0 libplist-2.0)
  if(PkgConfig_FOUND)
    pkg_check_modules(${package} QUIET IMPORTED_TARGET GLOBAL ${package})
  endif()
  if(NOT TARGET PkgConfig::${package})
    list(APPEND missing ${package})
  endif()
endforeach()

find_package(ICU QUIET COMPONENTS i18n uc)
if(NOT ICU_FOUND)
  list(APPEND missing ICU)
endif()
find_package(SQLite3 QUIET)
if(NOT SQLite3_FOUND)
  list(APPEND missing SQLite3)
endif()
unset(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL)

list(JOIN missing ", " missing)
if(NOT missing)
  set(QV_COMMONS_HAVE_DESKTOP ON)
elseif(QV_COMMONS_DESKTOP STREQUAL "AUTO")
  message(STATUS "The desktop adapter is left out; not found: ${missing}")
else()
  message(FATAL_ERROR "The desktop adapter needs what was not found: ${missing}")
endif()
