add_library(orlamo_options INTERFACE)
target_include_directories(orlamo_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(orlamo_options INTERFACE -Wall -Wextra -Wpedantic
                                                $<$<BOOL:${ORLAMO_WARNINGS_AS_ERRORS}>:-Werror>)

# orlamo_room(path [room...]): the library orlamo_<path> of the sources directly in that folder, and the rooms it uses.
# platform/qt becomes orlamo_qt.
function(orlamo_room path)
  get_filename_component(name ${path} NAME)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${path}/*.cpp ${PROJECT_SOURCE_DIR}/${path}/*.h)
  if(NOT sources)
    file(TOUCH ${PROJECT_BINARY_DIR}/empty.cpp)
    set(sources ${PROJECT_BINARY_DIR}/empty.cpp)
  endif()
  add_library(orlamo_${name} STATIC ${sources})
  set_target_properties(orlamo_${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_link_libraries(orlamo_${name} PUBLIC orlamo_options)
  foreach(used IN LISTS ARGN)
    target_link_libraries(orlamo_${name} PUBLIC orlamo_${used})
  endforeach()
endfunction()

# A test runs for milliseconds: optimizing it only makes the build longer.
set(ORLAMO_TEST_OPTIONS $<$<CONFIG:Release,RelWithDebInfo>:-O0>)

# orlamo_tests(path room...): the test program orlamo_<path>_tests of the sources in tests/<path>.
function(orlamo_tests path)
  get_filename_component(name ${path} NAME)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${path}/*.cpp ${PROJECT_SOURCE_DIR}/tests/${path}/*.h)
  list(LENGTH sources count)
  if(count EQUAL 0)
    return()
  endif()
  add_executable(orlamo_${name}_tests ${sources})
  target_compile_options(orlamo_${name}_tests PRIVATE ${ORLAMO_TEST_OPTIONS})
  target_link_libraries(orlamo_${name}_tests PRIVATE orlamo_doubles GTest::gmock_main)
  foreach(used IN LISTS ARGN)
    target_link_libraries(orlamo_${name}_tests PRIVATE orlamo_${used})
  endforeach()
  gtest_discover_tests(orlamo_${name}_tests TEST_PREFIX "${name}: " NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60)
endfunction()
