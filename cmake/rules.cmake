# What every target of the project shares.

add_library(vantora_rules INTERFACE)
target_include_directories(vantora_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(vantora_rules INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                               -Wnon-virtual-dtor -Woverloaded-virtual -Werror
                                               # amounts round step by step on every processor
                                               -ffp-contract=off)
if(VANTORA_SANITIZE)
  target_compile_options(vantora_rules INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer
                                                 # the instrumented code misleads this warning
                                                 -Wno-maybe-uninitialized)
  target_link_options(vantora_rules INTERFACE -fsanitize=address,undefined)
endif()

# One library per folder, so that the build system keeps the arrows between the folders:
# what a folder may include is what it links.
function(vantora_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC vantora_rules ${arg_LINKS})
endfunction()

function(vantora_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE vantora_rules ${arg_LINKS})
endfunction()

# One test program per folder of tests.
function(vantora_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE vantora_rules ${arg_LINKS} GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 300
                       PROPERTIES TIMEOUT 900)
endfunction()
