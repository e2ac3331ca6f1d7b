# talvor_room(<folder> [<library> ...]): the sources of src/<folder> as the library talvor_<folder>.
# What a room links publicly are the floors that its headers show.
function(talvor_room room)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp)
  if(sources)
    add_library(talvor_${room} STATIC ${sources})
    target_include_directories(talvor_${room} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(talvor_${room} PUBLIC ${ARGN} PRIVATE talvor_warnings)
  else()
    add_library(talvor_${room} INTERFACE)
    target_include_directories(talvor_${room} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(talvor_${room} INTERFACE ${ARGN})
  endif()
endfunction()

# talvor_tests(<folder> [<library> ...]): the tests of tests/<folder> as the program <folder>_tests.
function(talvor_tests room)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${room}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${room}_tests ${sources})
  target_include_directories(${room}_tests PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${room}_tests PRIVATE TALVOR_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                             TALVOR_DATA_FOLDER="${CMAKE_SOURCE_DIR}/data")
  target_link_libraries(${room}_tests PRIVATE ${ARGN} talvor_warnings GTest::gtest_main)
  # Half of the build was spent on tests: on the headers of the framework, and on optimising code that runs once.
  target_precompile_headers(${room}_tests PRIVATE <gtest/gtest.h>)
  target_compile_options(${room}_tests PRIVATE -O0)
  gtest_discover_tests(${room}_tests TEST_PREFIX "${room}." DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 300 LABELS ${room})
endfunction()
