# Language, warnings, sanitizers, cache and linker: everything that holds for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(TESSIVO_WERROR "Treat warnings as errors" ON)
set(TESSIVO_SANITIZE "" CACHE STRING "Comma-separated list handed to -fsanitize")

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
                    -Woverloaded-virtual -Wimplicit-fallthrough)
if(TESSIVO_WERROR)
  add_compile_options(-Werror)
endif()

if(TESSIVO_SANITIZE)
  add_compile_options(-fsanitize=${TESSIVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TESSIVO_SANITIZE})
  if(TESSIVO_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Fences, which the thread sanitizer does not see, are Qt's: in its headers, and so in the sources that it generates.
    add_compile_options(-Wno-tsan)
  endif()
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  add_link_options(-fuse-ld=mold)
endif()
