# One library target per folder; what a folder may include is what its target links.

get_filename_component(KEL_SOURCE_DIR "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)

set(KEL_COMPILE_OPTIONS -Wall -Wextra -Wconversion -Wshadow)
if(KEL_WARNINGS_AS_ERRORS)
  list(APPEND KEL_COMPILE_OPTIONS -Werror)
endif()
if(KEL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# kel_library(core SOURCES a.cpp b.cpp LINKS other_folder ... )
function(kel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(kel_${name} STATIC ${ARG_SOURCES})
  target_include_directories(kel_${name} PUBLIC ${KEL_SOURCE_DIR})
  target_compile_options(kel_${name} PRIVATE ${KEL_COMPILE_OPTIONS})
  target_link_libraries(kel_${name} PUBLIC ${ARG_LINKS})
endfunction()

# kel_test(core SOURCES a_test.cpp ... LINKS kel_core ...): one GoogleTest program per folder.
function(kel_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name}_tests ${ARG_SOURCES})
  target_compile_options(${name}_tests PRIVATE ${KEL_COMPILE_OPTIONS})
  target_link_libraries(${name}_tests PRIVATE kel_test_support GTest::gtest ${ARG_LINKS})
  gtest_discover_tests(${name}_tests DISCOVERY_MODE PRE_TEST
                       PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
endfunction()
