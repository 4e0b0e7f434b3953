# The tests of the age gate on the desktop, and of what it stands on.

# A test program with a QApplication whose font is of the usual size.
function(qv_add_screen_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;THREADS;LIBRARIES")
  if(arg_THREADS)
    list(APPEND arg_THREADS qt_environment.cpp)
  endif()
  qv_add_test(${name} desktop THREADS ${arg_THREADS}
    SOURCES qt_environment.cpp ${arg_SOURCES}
    LIBRARIES qv_commons::desktop Qt6::Widgets Qt6::Test ICU::i18n ICU::uc ${arg_LIBRARIES}
    ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

qv_add_screen_test(user_defaults_test SOURCES user_defaults_test.cpp watched_sqlite.cpp
                   LIBRARIES SQLite::SQLite3)
qv_add_screen_test(calendar_test SOURCES calendar_fields_test.cpp calendar_test.cpp
                   THREADS calendar_test.cpp)
qv_add_screen_test(wheel_test SOURCES wheel_test.cpp link_text_view_test.cpp widget_views_test.cpp)
qv_add_screen_test(age_gate_test
  SOURCES age_gate_fixture.cpp
          age_gate_layout_test.cpp
          age_gate_pictures_test.cpp
          age_gate_screen_test.cpp
          composer_pictures_test.cpp
          language_fit_test.cpp
          languages_test.cpp
          many_screens_test.cpp
          painting_test.cpp
          resource_search_test.cpp)
target_compile_definitions(age_gate_test
  PRIVATE QV_COMMONS_RESOURCES="${PROJECT_SOURCE_DIR}/qv_commons/resources"
          QV_COMMONS_PICTURES="${CMAKE_CURRENT_SOURCE_DIR}/pictures")

# Again with texts twice as large, and on real window systems, which have their own ways with focus,
# painting and geometry.
add_test(NAME desktop.age_gate_large_text
  COMMAND age_gate_test --gtest_filter=*AgeGateShapeTest*:*Pictures*:AgeGateTest*)
set_tests_properties(desktop.age_gate_large_text PROPERTIES LABELS desktop TIMEOUT 300
  ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QV_COMMONS_TEST_FONT_PIXELS=30")
qv_add_desktop_test(desktop.age_gate_xvfb NEEDS Xvfb
  COMMAND ${PROJECT_SOURCE_DIR}/tests/tools/with_xvfb
          $<TARGET_FILE:age_gate_test> --gtest_filter=AgeGateTest*:*Pictures*
  ENVIRONMENT LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tools/leaks.supp)
qv_add_wayland_test(desktop.age_gate_wayland
  $<TARGET_FILE:age_gate_test> --gtest_filter=AgeGateTest*:*Pictures*)

# Answers that owe nothing to ICU.
add_executable(calendar_years calendar_years.cpp)
qv_compile_options(calendar_years)
target_link_libraries(calendar_years PRIVATE qv_commons::desktop ICU::i18n ICU::uc)
add_test(NAME desktop.calendar_oracle
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/calendar_oracle.py
          $<TARGET_FILE:calendar_years>)
set_tests_properties(desktop.calendar_oracle PROPERTIES LABELS desktop TIMEOUT 300)

# A real host app, killed and started again.
add_executable(age_gate_start age_gate_start.cpp)
qv_compile_options(age_gate_start)
target_link_libraries(age_gate_start
  PRIVATE qv_commons::desktop Qt6::Widgets Qt6::Test ICU::i18n ICU::uc)
add_test(NAME desktop.age_gate_kill
  COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/kill_test.py
          $<TARGET_FILE:age_gate_start> 200)
set_tests_properties(desktop.age_gate_kill PROPERTIES LABELS desktop TIMEOUT 600
  ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# The same under failing system calls, locks, a full disk and more kills. Tracing is not allowed
# everywhere.
if(NOT QV_COMMONS_SANITIZE)
  qv_add_desktop_test(desktop.faults NEEDS strace
    COMMAND ${Python3_EXECUTABLE} ${CMAKE_CURRENT_SOURCE_DIR}/fault_matrix.py
            $<TARGET_FILE:age_gate_start> 30
    ENVIRONMENT QT_QPA_PLATFORM=offscreen)
endif()
