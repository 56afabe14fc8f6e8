# One library per folder of src/, so that the linker shows an include that goes upwards.

add_library(varnik_options INTERFACE)
target_include_directories(varnik_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(varnik_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess> -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(VARNIK_SANITIZE)
  target_compile_options(varnik_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(varnik_options INTERFACE -fsanitize=address,undefined)
endif()
if(VARNIK_FUZZ)
  target_compile_options(varnik_options INTERFACE -fsanitize=fuzzer-no-link,float-cast-overflow -Wno-error)
  target_link_options(varnik_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The standard headers that nearly every file uses, compiled once for all folders.
file(WRITE ${CMAKE_BINARY_DIR}/pch.cpp "")
add_library(varnik_pch STATIC ${CMAKE_BINARY_DIR}/pch.cpp)
target_link_libraries(varnik_pch PUBLIC varnik_options)
target_precompile_headers(varnik_pch PRIVATE
  <algorithm> <array> <chrono> <cmath> <cstdint> <filesystem> <fstream> <functional> <map> <memory>
  <optional> <span> <sstream> <stdexcept> <string> <string_view> <unordered_map> <utility> <variant> <vector>)

# varnik_library(NAME FOLDER [lower libraries ...]): every .cpp of src/FOLDER (not of its subfolders).
function(varnik_library name folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp)
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC varnik_options ${ARGN})
    target_precompile_headers(${name} REUSE_FROM varnik_pch)
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE varnik_options ${ARGN})
  endif()
endfunction()
