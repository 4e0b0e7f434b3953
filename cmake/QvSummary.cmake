# What a configuration builds and what it leaves out, told in one place at its end.

# Those are built.
function(qv_builds)
  set_property(GLOBAL APPEND PROPERTY QV_COMMONS_BUILDS ${ARGV})
endfunction()

# `what` is left out for want of the rest, each with the package that brings it: "fmt (libfmt-dev)".
function(qv_leaves_out what)
  list(JOIN ARGN ", " missing)
  set_property(GLOBAL APPEND PROPERTY QV_COMMONS_LEFT_OUT "${what}, for want of ${missing}")
endfunction()

function(qv_print_summary)
  get_property(builds GLOBAL PROPERTY QV_COMMONS_BUILDS)
  list(JOIN builds ", " builds)
  message(STATUS "QV Commons ${PROJECT_VERSION} builds: ${builds}")
  get_property(left_out GLOBAL PROPERTY QV_COMMONS_LEFT_OUT)
  foreach(line IN LISTS left_out)
    message(STATUS "  left out: ${line}")
  endforeach()
endfunction()
