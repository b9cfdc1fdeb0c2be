# What every target of the project shares: one place for warnings, sanitizers and the include root.
option(KINBOOK_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(kinbook_options INTERFACE)
target_include_directories(kinbook_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(kinbook_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion)
# Text goes through QString with explicit literals, so that no byte string is taken for the wrong encoding by accident.
target_compile_definitions(kinbook_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
  QT_NO_KEYWORDS)
if(KINBOOK_SANITIZE)
  target_compile_options(kinbook_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(kinbook_options INTERFACE -fsanitize=address,undefined)
endif()

# kinbook_library(NAME SOURCES... [LINK libraries...]): a static library of one folder.
function(kinbook_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC kinbook_options ${arg_LINK})
endfunction()

# kinbook_test(NAME SOURCES... [LINK libraries...]): a test program of its own, every case known to ctest.
function(kinbook_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE kinbook_options ${arg_LINK} GTest::gtest)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
endfunction()

# kinbook_gui_test(NAME SOURCES... [LINK libraries...]): a test program that plays a user in front of real windows.
function(kinbook_gui_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  kinbook_test(${name} SOURCES ${arg_SOURCES} LINK kinbook_test_gui ${arg_LINK})
endfunction()
