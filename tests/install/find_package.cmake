# Installs the build, moves the installed prefix, and builds a consumer against it.
include(${CMAKE_CURRENT_LIST_DIR}/common.cmake)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)
file(RENAME ${SCRATCH}/prefix ${SCRATCH}/moved)
build_and_run_consumer(${CMAKE_CURRENT_LIST_DIR}/find_package ${SCRATCH}/build
                       -DCMAKE_PREFIX_PATH=${SCRATCH}/moved)
