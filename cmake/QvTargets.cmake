# How every target of the project is compiled.

# The flags that all share: C++20 without extensions, the warnings, and the sanitizers asked for.
function(qv_compile_options target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                         $<$<BOOL:${QV_COMMONS_WARNINGS_AS_ERRORS}>:-Werror>)
  if(QV_COMMONS_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${QV_COMMONS_SANITIZE}
                           -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=${QV_COMMONS_SANITIZE})
  endif()
endfunction()

# Has counted which lines and branches of the library run, by clang's counters, which last where the
# process is aborted.
function(qv_count_coverage target)
  if(QV_COMMONS_COVERAGE)
    target_compile_options(${target} PRIVATE -fprofile-instr-generate -fcoverage-mapping
                           "SHELL:-mllvm -runtime-counter-relocation")
    target_link_options(${target} PUBLIC -fprofile-instr-generate)
  endif()
endfunction()

# A library of the project: target `name`, alias qv_commons::<export>, static or, with
# BUILD_SHARED_LIBS, shared, of which only what is public can be seen from outside.
function(qv_add_library name export)
  add_library(${name})
  add_library(qv_commons::${export} ALIAS ${name})
  set_target_properties(${name} PROPERTIES EXPORT_NAME ${export} POSITION_INDEPENDENT_CODE ON
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  qv_compile_options(${name})
  qv_count_coverage(${name})
  if(APPLE)  # an app or a framework that links them shows the public classes alone
    set_target_properties(${name} PROPERTIES OBJCXX_VISIBILITY_PRESET hidden)
  endif()
  target_compile_definitions(${name} PUBLIC $<$<BOOL:${BUILD_SHARED_LIBS}>:QV_COMMONS_SHARED>)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT QV_COMMONS_SANITIZE)  # what a shared one lacks is told here
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
  # Nobody replaces functions of these libraries at load time, so g++ may inline them, as clang++ does.
  target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
endfunction()

# The sources that match the patterns; the next build takes in a new one by itself.
function(qv_take_sources target)
  file(GLOB sources CONFIGURE_DEPENDS ${ARGN})
  target_sources(${target} PRIVATE ${sources})
endfunction()

# The public headers of the library `name`, installed as they lie in the tree; all others stay here.
function(qv_public_headers name)
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARGN})
endfunction()
