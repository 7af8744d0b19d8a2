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
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# morvel_library(name LINKS ... SOURCES ...): one room of the house. LINKS are its only arrows.
function(morvel_library name)
  cmake_parse_arguments(ARG "" "" "LINKS;SOURCES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} morvel_options)
endfunction()
