# Builds a consumer that has the library as a subdirectory, without the packages of the desktop, and
# looks that nothing but the libraries themselves was built along.
include(${CMAKE_CURRENT_LIST_DIR}/common.cmake)
build_and_run_consumer(${CMAKE_CURRENT_LIST_DIR}/add_subdirectory ${SCRATCH}/build
                       -DQV_COMMONS_ROOT=${ROOT} -DQV_COMMONS_DESKTOP=OFF)
file(GLOB_RECURSE unwanted ${SCRATCH}/build/*_test* ${SCRATCH}/build/*bench* ${SCRATCH}/build/*fuzz*)
if(unwanted)
  message(FATAL_ERROR "built along: ${unwanted}")
endif()
file(STRINGS ${SCRATCH}/build/CMakeCache.txt packages REGEX "^(Qt6|GTest|benchmark)[A-Za-z0-9]*_DIR:")
if(packages)
  message(FATAL_ERROR "looked for: ${packages}")
endif()
