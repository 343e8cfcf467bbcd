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

# Files read together see each other's names; read one by one, they are told of their own. Cleaning up
# in between takes the compiler longer than it is worth.
add_library(vantora_read_together INTERFACE)
target_compile_options(vantora_read_together INTERFACE -Wno-shadow -Wno-subobject-linkage
                                                       --param=ggc-min-heapsize=400000)
if(CMAKE_UNITY_BUILD)
  target_link_libraries(vantora_rules INTERFACE vantora_read_together)
endif()

# What goes through whole archives and long documents, and is told by a bench, is optimized in full. The
# rest waits for somebody's next key: half as much there takes the compiler a third less.
add_library(vantora_hurried INTERFACE)
target_compile_options(vantora_hurried INTERFACE $<$<CONFIG:RelWithDebInfo>:-O2>)

# Code that is gone through once a run, such as the reading of a command line, waits for no optimizer,
# which takes most of the compiler's time there.
add_library(vantora_unhurried INTERFACE)
target_compile_options(vantora_unhurried INTERFACE $<$<CONFIG:RelWithDebInfo>:-O0$<SEMICOLON>-U_FORTIFY_SOURCE>)

# The compiler's usual linker takes seconds for each of some thirty programs; this one comes with it.
find_program(VANTORA_FAST_LINKER NAMES ld.gold)
if(VANTORA_FAST_LINKER AND NOT CMAKE_EXE_LINKER_FLAGS MATCHES "-fuse-ld=")
  target_link_options(vantora_rules INTERFACE -fuse-ld=gold)
endif()

# Headers of the standard library and of Qt that nearly every file reads, kept as the compiler leaves
# them. Who works on a file reads its own, and is told of one that is missing.
option(VANTORA_HEADERS_ONCE "Read the large headers once for all libraries: for whole builds" OFF)
set(standard_headers <algorithm> <array> <chrono> <cmath> <cstdint> <cstring> <filesystem>
    <functional> <map> <memory> <optional> <span> <string> <string_view> <utility> <vector>)
set(toolkit_headers <QAbstractItemView> <QApplication> <QBoxLayout> <QDialog> <QKeyEvent> <QLabel>
    <QLineEdit> <QMenu> <QMessageBox> <QPainter> <QPushButton> <QScrollBar> <QSettings> <QShortcut>
    <QTimer> <QToolButton>)

# The first library of each kind keeps them, the others take them from there.
function(vantora_keep_headers name)
  if(NOT VANTORA_HEADERS_ONCE)
    return()
  endif()
  if(name STREQUAL vantora_text)
    target_precompile_headers(${name} PRIVATE ${standard_headers})
  elseif(name STREQUAL vantora_look)
    target_precompile_headers(${name} PRIVATE ${standard_headers} ${toolkit_headers})
  elseif(CMAKE_CURRENT_SOURCE_DIR MATCHES "/src/(desktop|windows)"
         OR name MATCHES "^(vantora-ordini|vantora_company_choice|vantora_mirxpdf|mirxpdf)$")
    target_precompile_headers(${name} REUSE_FROM vantora_look)
  elseif(NOT CMAKE_CURRENT_SOURCE_DIR MATCHES "/(bench|command_line|errors|paper|pictures|scripted|support)$")
    # those named have options of their own, or come before
    target_precompile_headers(${name} REUSE_FROM vantora_text)
  endif()
endfunction()

# One library per folder, so that the build system keeps the arrows between the folders:
# what a folder may include is what it links.
function(vantora_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC vantora_rules ${arg_LINKS})
  vantora_keep_headers(${name})
endfunction()

function(vantora_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE vantora_rules ${arg_LINKS})
  vantora_keep_headers(${name})
endfunction()

# One test program per folder of tests, or for several small ones. What it tests is built as users
# get it; the tests' own code, half of all that is compiled, waits for no optimizer and is told by
# its assertions, not by a debugger.
function(vantora_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_options(${name} PRIVATE $<$<BOOL:${VANTORA_SANITIZE}>:-O0>)
  if(NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    # read together, which takes half the time; who works on one of them doesn't want to wait for all
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
    target_link_libraries(${name} PRIVATE vantora_rules vantora_read_together)
  endif()
  target_link_libraries(${name} PRIVATE vantora_rules vantora_unhurried ${arg_LINKS}
                                        GTest::gtest_main)
  if(VANTORA_HEADERS_ONCE AND NOT arg_LINKS MATCHES "Qt6|mirxpdf")
    target_compile_options(${name} PRIVATE -pthread)
    if(name STREQUAL store_test)
      target_precompile_headers(${name} PRIVATE ${standard_headers} <gtest/gtest.h>)
    else()
      target_precompile_headers(${name} REUSE_FROM store_test)
    endif()
  endif()
  # asked for its tests when they are run: building needs no display
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 300
                       PROPERTIES TIMEOUT 900)
endfunction()
