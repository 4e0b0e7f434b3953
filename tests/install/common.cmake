# Runs a command and stops the script where it fails.
function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Configures, builds and runs the consumer in `dir`; its version text must be what the bundle says.
function(build_and_run_consumer dir build)
  run(${CMAKE_COMMAND} -S ${dir} -B ${build} -G ${GENERATOR} -DCMAKE_CXX_COMPILER=${CXX}
      "-DCMAKE_CXX_FLAGS=${FLAGS}" ${ARGN})
  run(${CMAKE_COMMAND} --build ${build})
  execute_process(COMMAND ${build}/consumer OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  if(NOT output STREQUAL "2.4.1(317)\n")
    message(FATAL_ERROR "the consumer printed: ${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
