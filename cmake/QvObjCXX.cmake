# Objective-C++ with blocks and ARC off the device, for the tests of the iOS adapter: clang, GCC's
# Objective-C run-time and gnustep-base.
#
# Sets QV_OBJCXX_FOUND, or QV_OBJCXX_MISSING to what is missing. Where found, defines
#   qv_objc_arc    for sources under ARC: the adapter, the stand-in of the platform, the tests
#   qv_objc_plain  for the run-time support, which can't be under ARC itself
#   qv_objc_link   for programs
set(QV_OBJCXX_FOUND OFF)
set(QV_OBJCXX_MISSING "")

find_program(QV_OBJCXX_COMPILER NAMES clang++-14 clang++-16 clang++-19 clang++)
find_path(QV_GNUSTEP_INCLUDE Foundation/Foundation.h PATH_SUFFIXES GNUstep)
find_library(QV_GNUSTEP_BASE gnustep-base)
# GCC keeps its Objective-C headers in a folder named after its major version.
file(GLOB qv_objc_headers /usr/lib/gcc/*/*/include/objc/objc.h)
list(SORT qv_objc_headers COMPARE NATURAL ORDER DESCENDING)
if(NOT QV_OBJCXX_COMPILER)
  list(APPEND QV_OBJCXX_MISSING "clang++ (clang)")
endif()
if(NOT QV_GNUSTEP_INCLUDE OR NOT QV_GNUSTEP_BASE OR NOT qv_objc_headers)
  list(APPEND QV_OBJCXX_MISSING "GNUstep (libgnustep-base-dev)")
endif()
if(QV_OBJCXX_MISSING)
  return()
endif()
list(GET qv_objc_headers 0 qv_objc_header)
cmake_path(GET qv_objc_header PARENT_PATH qv_objc_folder)
cmake_path(SET qv_objc_library NORMALIZE "${qv_objc_folder}/../../libobjc.so")

if(NOT CMAKE_OBJCXX_COMPILER)
  set(CMAKE_OBJCXX_COMPILER ${QV_OBJCXX_COMPILER})
endif()
enable_language(OBJCXX)

# The run-time's headers, patched where they don't go with ARC or with @YES, and with the
# declarations that the device's have and they lack.
set(qv_objc_compat ${PROJECT_BINARY_DIR}/objc_compat)
file(MAKE_DIRECTORY ${qv_objc_compat}/objc)
file(GLOB qv_objc_headers ${qv_objc_folder}/*.h)
foreach(header IN LISTS qv_objc_headers)
  file(READ ${header} text)
  cmake_path(GET header FILENAME name)
  string(REPLACE "return object->class_pointer;"
                 "return *(Class *)(__bridge void *)object;" text "${text}")
  string(REPLACE "#define YES   (BOOL)1" "#define YES ((BOOL)1)" text "${text}")
  string(REPLACE "#define NO    (BOOL)0" "#define NO ((BOOL)0)" text "${text}")
  if(name STREQUAL "runtime.h")
    string(APPEND text [[

#ifndef QV_OBJC_ASSOCIATIONS
#define QV_OBJC_ASSOCIATIONS
#include <stdint.h>
#ifdef __cplusplus
extern "C" {
#endif
enum { OBJC_ASSOCIATION_RETAIN_NONATOMIC = 1 };
typedef uintptr_t objc_AssociationPolicy;
void objc_setAssociatedObject(id object, const void *key, id value, objc_AssociationPolicy policy);
id objc_getAssociatedObject(id object, const void *key);
#ifdef __cplusplus
}
#endif
#endif
]])
  endif()
  file(CONFIGURE OUTPUT ${qv_objc_compat}/objc/${name} CONTENT "${text}" @ONLY)
endforeach()
file(CONFIGURE OUTPUT ${qv_objc_compat}/objc/blocks_runtime.h CONTENT [[#pragma once
#ifdef __cplusplus
extern "C" {
#endif
void *_Block_copy(const void *block);
void _Block_release(const void *block);
#ifdef __cplusplus
}
#endif
]] @ONLY)

# For those that read the headers without CMake: the folder is another from release to release.
file(CREATE_LINK ${QV_GNUSTEP_INCLUDE} ${qv_objc_compat}/GNUstep SYMBOLIC)

add_library(qv_objc_common INTERFACE)
target_include_directories(qv_objc_common SYSTEM INTERFACE ${qv_objc_compat} ${QV_GNUSTEP_INCLUDE})
target_compile_definitions(qv_objc_common INTERFACE GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNU_RUNTIME=1
                           _NATIVE_OBJC_EXCEPTIONS)
target_compile_options(qv_objc_common INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fblocks -fexceptions
                       -fobjc-exceptions -fconstant-string-class=NSConstantString
                       -Wno-gnu-conditional-omitted-operand
                       -Wno-cast-function-type>)  # IMPs are cast to their methods' types
add_library(qv_objc_plain INTERFACE)
target_compile_options(qv_objc_plain INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gcc>)
target_link_libraries(qv_objc_plain INTERFACE qv_objc_common)
add_library(qv_objc_arc INTERFACE)
target_compile_options(qv_objc_arc INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc
                       -fobjc-runtime=gnustep-1.6 -fobjc-legacy-dispatch>)
target_link_libraries(qv_objc_arc INTERFACE qv_objc_common)
add_library(qv_objc_link INTERFACE)
target_link_options(qv_objc_link INTERFACE -Wl,--wrap=__objc_exec_class)
target_link_libraries(qv_objc_link INTERFACE ${QV_GNUSTEP_BASE} ${qv_objc_library})
set(QV_OBJCXX_FOUND ON)
