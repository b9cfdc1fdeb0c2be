# What every target of the project shares: one place for warnings, sanitizers and the include root.
option(KINBOOK_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_library(kinbook_options INTERFACE)
target_include_directories(kinbook_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(kinbook_options INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion)
# Text goes through QString with explicit literals, so that no byte string is taken for the wrong encoding by accident.
target_compile_definitions(kinbook_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
  QT_NO_KEYWORDS)
# The cache asks for it where headers are precompiled.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(kinbook_options INTERFACE -fpch-preprocess)
endif()
# Where files are joined, it takes every nameless namespace for one of a header.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(kinbook_options INTERFACE -Wno-subobject-linkage)
endif()
# Some sixty programs are linked, twice for a whole check: with mold a matter of seconds.
find_program(MOLD mold)
if(MOLD)
  target_link_options(kinbook_options INTERFACE -fuse-ld=mold)
endif()
if(KINBOOK_SANITIZE)
  target_compile_options(kinbook_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(kinbook_options INTERFACE -fsanitize=address,undefined)
endif()

# The headers that most files take in, most of a file's work for the compiler: translated once, for the targets without
# and for those with widgets, and in the same way for their tests. No file is to rely on it: the preset dev, where files
# are not joined, builds without it under -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON.
set(kinbook_headers_core <QDate> <QFile> <QString> <QStringList> <QVariant>
  <algorithm> <functional> <map> <memory> <optional> <vector>)
set(kinbook_headers_widgets ${kinbook_headers_core} <QApplication> <QBoxLayout> <QKeyEvent> <QLabel> <QLineEdit> <QMenu>
  <QPointer> <QToolBar> <QWidget>)
set(kinbook_headers_core_test ${kinbook_headers_core} <gtest/gtest.h>)
set(kinbook_headers_widgets_test ${kinbook_headers_widgets} <QDir> <QJsonArray> <QJsonObject> <gtest/gtest.h>)

# kinbook_precompile(NAME KIND): the first target of a kind translates its headers, the others take them from there.
function(kinbook_precompile name kind)
  get_property(owner GLOBAL PROPERTY kinbook_headers_${kind}_owner)
  if(owner)
    target_precompile_headers(${name} REUSE_FROM ${owner})
  else()
    target_precompile_headers(${name} PRIVATE ${kinbook_headers_${kind}})
    set_property(GLOBAL PROPERTY kinbook_headers_${kind}_owner ${name})
  endif()
endfunction()

# kinbook_library(NAME [WIDGETS] SOURCES... [LINK libraries...]): a static library of one folder.
function(kinbook_library name)
  cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC kinbook_options ${arg_LINK})
  if(arg_WIDGETS)
    kinbook_precompile(${name} widgets)
  else()
    kinbook_precompile(${name} core)
  endif()
endfunction()

# kinbook_test(NAME [WIDGETS] SOURCES... [LINK libraries...]): a test program of its own.
function(kinbook_test name)
  cmake_parse_arguments(arg "WIDGETS" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE kinbook_options ${arg_LINK} GTest::gtest)
  # What is measured and shipped is optimised; to optimise what calls it would take longer than it saves.
  target_compile_options(${name} PRIVATE -O0)
  if(arg_WIDGETS)
    kinbook_precompile(${name} widgets_test)
  else()
    kinbook_precompile(${name} core_test)
  endif()
  # One process a program: starting one for every case took as long as the cases themselves.
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 900)
endfunction()

# kinbook_gui_test(NAME SOURCES... [LINK libraries...]): a test program that plays a user in front of real windows.
function(kinbook_gui_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  kinbook_test(${name} WIDGETS SOURCES ${arg_SOURCES} LINK kinbook_test_gui ${arg_LINK})
endfunction()
