# One interface target that carries the project's own flags; third-party code never sees them.
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
if(VENTORIA_SANITIZE)
  target_compile_options(ventoria_flags INTERFACE
    $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer>)
  target_link_options(ventoria_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VENTORIA_FUZZ)
  target_compile_options(ventoria_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=fuzzer-no-link>)
endif()
