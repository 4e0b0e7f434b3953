# Installs the build with the desktop adapter, builds a program against it, and runs that program
# outside the prefix, in it, and in the prefix once it has been moved.
include(${CMAKE_CURRENT_LIST_DIR}/common.cmake)
set(layout share/qv_commons/QV_Commons_iOS.bundle/QV_AgeGateViewController.ui)

function(expect_layout_at program expected)
  execute_process(COMMAND ${program} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  string(STRIP "${output}" output)
  if(NOT output STREQUAL expected)
    file(REAL_PATH "${output}" output)
  endif()
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${program} finds the layout at ${output}, not at ${expected}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${SCRATCH}/prefix)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/desktop -B ${SCRATCH}/build -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${FLAGS}" -DCMAKE_PREFIX_PATH=${SCRATCH}/prefix)
run(${CMAKE_COMMAND} --build ${SCRATCH}/build)
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{ASAN_OPTIONS} detect_leaks=0)
expect_layout_at(${SCRATCH}/build/desktop_consumer nowhere)
file(COPY ${SCRATCH}/build/desktop_consumer DESTINATION ${SCRATCH}/prefix/bin)
expect_layout_at(${SCRATCH}/prefix/bin/desktop_consumer ${SCRATCH}/prefix/${layout})
file(RENAME ${SCRATCH}/prefix ${SCRATCH}/moved)
expect_layout_at(${SCRATCH}/moved/bin/desktop_consumer ${SCRATCH}/moved/${layout})
