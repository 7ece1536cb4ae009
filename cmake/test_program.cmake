# One test program for each folder, so that a change rebuilds and links little.
function(quorvane_tests folder)
  quorvane_test_program(${folder} ${CMAKE_CURRENT_SOURCE_DIR}/${folder} ${ARGN})
endfunction()

function(quorvane_test_program folder path)
  # What only one kind of system can do is tested in a subfolder named after it.
  file(GLOB sources CONFIGURE_DEPENDS ${path}/*_test.cpp ${path}/${QUORVANE_SYSTEM}/*_test.cpp)
  string(REPLACE "/" "_" name ${folder}_tests)
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${ARGN})
  if(CMAKE_CROSSCOMPILING)
    # One entry for the whole program: a foreign program's list of tests has line ends of its own,
    # which discovery takes for part of the names, and each start under Wine takes its time.
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
    return()
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen TIMEOUT 60)
endfunction()
