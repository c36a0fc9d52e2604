# A room is one folder of the library: a static archive that knows the rooms below it. The
# installed library is all rooms in one shared object; a test links just the rooms that it needs.

add_library(corvane_options INTERFACE)
target_include_directories(corvane_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(corvane_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror)
if(WIN32)
  target_compile_definitions(corvane_options INTERFACE UNICODE _UNICODE)
endif()
if(CORVANE_SANITIZE)
  target_compile_options(corvane_options INTERFACE
    -fsanitize=${CORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(corvane_options INTERFACE -fsanitize=${CORVANE_SANITIZE})
endif()

# corvane_room(NAME SOURCES file... [ROOMS room...] [LIBRARIES library...])
function(corvane_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;ROOMS;LIBRARIES" ${ARGN})
  add_library(room_${name} STATIC ${ROOM_SOURCES})
  list(TRANSFORM ROOM_ROOMS PREPEND room_)
  target_link_libraries(room_${name} PUBLIC corvane_options ${ROOM_ROOMS})
  target_link_libraries(room_${name} PRIVATE ${ROOM_LIBRARIES})
  set_property(GLOBAL APPEND PROPERTY CORVANE_ROOMS room_${name})
endfunction()

# What every test reads again and again, compiled once. The program is only its place: a precompiled
# header fits sources that are compiled with the same options, as those of programs are; -pthread,
# which some libraries bring, stands in all of them.
function(corvane_test_headers)
  file(CONFIGURE OUTPUT nothing.cpp CONTENT "int main() {}\n")
  add_executable(test_headers ${CMAKE_CURRENT_BINARY_DIR}/nothing.cpp)
  target_link_libraries(test_headers PRIVATE corvane_options GTest::gmock GTest::gtest)
  target_compile_options(test_headers PRIVATE -pthread)
  target_precompile_headers(test_headers PRIVATE <algorithm> <functional> <map> <memory> <string>
    <vector> <gmock/gmock.h> <gtest/gtest.h> ${PROJECT_SOURCE_DIR}/corvane/platform/platform.h)
endfunction()

# corvane_test(NAME SOURCES file... ROOMS room... [LIBRARIES library...] [TIMEOUT seconds] [XVFB])
# One program with all its cases, in a new order at every run. XVFB: its windows are real ones, on a
# virtual X server.
function(corvane_test name)
  cmake_parse_arguments(TEST "XVFB" "TIMEOUT" "SOURCES;ROOMS;LIBRARIES" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  list(TRANSFORM TEST_ROOMS PREPEND room_)
  target_link_libraries(${name} PRIVATE ${TEST_ROOMS} test_support corvane_options GTest::gtest_main
    GTest::gmock ${TEST_LIBRARIES})
  target_compile_options(${name} PRIVATE -pthread)
  target_precompile_headers(${name} REUSE_FROM test_headers)
  set(display headless)
  set(server "")
  if(TEST_XVFB)
    set(display sdl)
    set(server ${PROJECT_SOURCE_DIR}/scripts/with-xvfb)
  endif()
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 240)
  endif()
  add_test(NAME ${name} COMMAND ${server} $<TARGET_FILE:${name}> --gtest_shuffle --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES TIMEOUT ${TEST_TIMEOUT}
    ENVIRONMENT "CORVANE_DISPLAY=${display}")
endfunction()

# corvane_wayland_test(NAME SIZE widthxheight CASES filter)
# Some cases of an XVFB test once more (NAME_wayland), on a Wayland desktop of this size.
function(corvane_wayland_test name)
  # On Wayland SDL and what it loads leave memory behind, some of it by libraries that are unloaded at
  # the end, so that no suppression can name them.
  set(asan detect_leaks=0:strict_string_checks=1)
  cmake_parse_arguments(TEST "" "SIZE;CASES" "" ${ARGN})
  add_test(NAME ${name}_wayland
    COMMAND ${PROJECT_SOURCE_DIR}/scripts/with-xvfb ${PROJECT_SOURCE_DIR}/scripts/with-weston
      $<TARGET_FILE:${name}> --gtest_filter=${TEST_CASES} --gtest_shuffle --gtest_brief=1)
  set_tests_properties(${name}_wayland PROPERTIES TIMEOUT 240
    ENVIRONMENT "CORVANE_DISPLAY=sdl;CORVANE_WESTON_SIZE=${TEST_SIZE};ASAN_OPTIONS=${asan}")
endfunction()
