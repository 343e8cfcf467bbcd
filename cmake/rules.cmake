# What every target of the project shares.

add_library(vantora_rules INTERFACE)
target_include_directories(vantora_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(vantora_rules INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                               -Wnon-virtual-dtor -Woverloaded-virtual
                                               $<$<BOOL:${VANTORA_STRICT}>:-Werror>
                                               # amounts round step by step on every processor
                                               -ffp-contract=off)
if(VANTORA_SANITIZE)
  target_compile_options(vantora_rules INTERFACE -fsanitize=address,undefined
                                                 -fno-sanitize-recover=all -fno-omit-frame-pointer
                                                 # the instrumented code misleads this warning
                                                 -Wno-maybe-uninitialized)
  target_link_options(vantora_rules INTERFACE -fsanitize=address,undefined)
endif()

# What programs tell of their version.
add_library(vantora_version INTERFACE)
target_compile_definitions(vantora_version INTERFACE VANTORA_VERSION="${PROJECT_VERSION}")

# Files read together see each other's names; read one by one, they are told of their own.
add_library(vantora_read_together INTERFACE)
target_compile_options(vantora_read_together INTERFACE -Wno-shadow -Wno-subobject-linkage)
if(CMAKE_UNITY_BUILD)
  target_link_libraries(vantora_rules INTERFACE vantora_read_together)
endif()

# The system's own linker takes seconds for each of some forty programs.
find_program(VANTORA_FAST_LINKER NAMES ld.lld)
if(VANTORA_FAST_LINKER AND NOT CMAKE_EXE_LINKER_FLAGS MATCHES "-fuse-ld=")
  target_link_options(vantora_rules INTERFACE -fuse-ld=lld)
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

# One test program per folder of tests. What it tests is built as users get it; the tests' own code,
# half of all that is compiled, waits for no optimizer and is told by its assertions, not by a debugger.
function(vantora_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_options(${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O0$<SEMICOLON>-g0$<SEMICOLON>-U_FORTIFY_SOURCE>
                                         $<$<BOOL:${VANTORA_SANITIZE}>:-O0>)
  if(NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    # read together, which takes half the time; who works on one of them doesn't want to wait for all
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
    target_link_libraries(${name} PRIVATE vantora_rules vantora_read_together)
  endif()
  target_link_libraries(${name} PRIVATE vantora_rules ${arg_LINKS} GTest::gtest_main)
  # asked for its tests when they are run: building needs no display
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 300
                       PROPERTIES TIMEOUT 900)
endfunction()
