# The compilers that are known to do, and the project's own flags; third-party code never sees them.
set(least_GNU 12)
set(least_Clang 14)
if(NOT DEFINED least_${CMAKE_CXX_COMPILER_ID})
  message(FATAL_ERROR "Ventoria is built with GCC or Clang, not with ${CMAKE_CXX_COMPILER_ID}")
elseif(CMAKE_CXX_COMPILER_VERSION VERSION_LESS least_${CMAKE_CXX_COMPILER_ID})
  message(FATAL_ERROR "Ventoria needs ${CMAKE_CXX_COMPILER_ID} ${least_${CMAKE_CXX_COMPILER_ID}} or newer; this is "
    "${CMAKE_CXX_COMPILER_VERSION}")
endif()

add_library(ventoria_flags INTERFACE)
target_compile_definitions(ventoria_flags INTERFACE VENTORIA_VERSION="${PROJECT_VERSION}")
target_compile_options(ventoria_flags INTERFACE
  $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion>)
# GCC 12 warns of copies in std::string that never overlap (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(ventoria_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
if(VENTORIA_WERROR)
  target_compile_options(ventoria_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Werror>)
endif()

# What watches the logic while it runs: ventoria_watched is for whatever is compiled under it. What is not, like the
# desktop's own files, is linked with it all the same.
add_library(ventoria_watched INTERFACE)
if(VENTORIA_SANITIZE)
  target_compile_options(ventoria_watched INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer>)
  target_link_options(ventoria_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VENTORIA_FUZZ)
  target_compile_options(ventoria_watched INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>)
endif()
