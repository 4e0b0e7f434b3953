# Looks for packages and collects, in words, those that are missing.

# Appends to the list `missing` "`name` (`package`)" where find_package doesn't find `name`; `package`
# is what Debian calls what brings it. What follows is handed on to find_package.
macro(qv_find missing name package)
  find_package(${name} ${ARGN} QUIET)
  if(NOT ${name}_FOUND)
    list(APPEND ${missing} "${name} (${package})")
  endif()
endmacro()

# The same for what pkg-config finds; the target is PkgConfig::`name`.
macro(qv_find_by_pkg_config missing name package)
  find_package(PkgConfig QUIET)
  if(PkgConfig_FOUND AND NOT TARGET PkgConfig::${name})
    pkg_check_modules(${name} QUIET IMPORTED_TARGET GLOBAL ${name})
  endif()
  if(NOT TARGET PkgConfig::${name})
    list(APPEND ${missing} "${name} (${package}, pkg-config)")
  endif()
endmacro()
