# One warning level for everything that is built here.
add_library(morvel_options INTERFACE)
target_compile_options(morvel_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
target_include_directories(morvel_options INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/src)
target_compile_definitions(morvel_options INTERFACE
  MORVEL_VERSION="${PROJECT_VERSION}")
if(MORVEL_ASAN)
  target_compile_options(morvel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(morvel_options INTERFACE -fsanitize=address,undefined)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(morvel_options INTERFACE -fpch-preprocess) # what ccache wants of a precompiled header
  endif()
endif()

# Reading Qt's headers is most of what compiling a source costs, so they are compiled ahead: once for the rooms that
# know no windows and once for the others. Each source includes what it uses all the same: scripts/check reads it
# without them.
function(morvel_precompiled name library)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
  target_link_libraries(${name} PRIVATE ${library} morvel_options)
  target_precompile_headers(${name} PRIVATE ${ARGN})
endfunction()
set(standard_headers <algorithm> <array> <functional> <map> <memory> <optional> <span> <variant> <vector>)
morvel_precompiled(precompiled Qt6::Gui ${standard_headers}
  <QByteArray> <QDateTime> <QDir> <QFile> <QHash> <QImage> <QPainter> <QSet> <QStringList>)
morvel_precompiled(precompiled_windows Qt6::Widgets ${standard_headers}
  <QApplication> <QComboBox> <QDateTime> <QDialog> <QDir> <QFile> <QFormLayout> <QHash> <QLabel> <QLineEdit>
  <QMouseEvent> <QPainter> <QPushButton> <QSet> <QTableWidget> <QTreeWidget>)

# morvel_library(name [WINDOWS] LINKS ... SOURCES ...): one room of the house. LINKS are its only arrows.
function(morvel_library name)
  cmake_parse_arguments(ARG "WINDOWS" "" "LINKS;SOURCES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} morvel_options)
  set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_WINDOWS})
  if(ARG_WINDOWS)
    target_precompile_headers(${name} REUSE_FROM precompiled_windows)
  elseif(NOT ARG_LINKS STREQUAL Qt6::Core)
    target_precompile_headers(${name} REUSE_FROM precompiled)
  endif()
endfunction()
