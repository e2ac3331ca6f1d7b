# One target holds the warnings; every target of the house links it. They are errors in ./check alone
# (CMAKE_COMPILE_WARNING_AS_ERROR): a newer compiler must not keep anyone from building the program.
add_library(talvor_warnings INTERFACE)
target_compile_options(talvor_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
  -Wimplicit-fallthrough
  # A designated initialiser names what it sets; the rest has its default.
  -Wno-missing-field-initializers)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps inside its own library when texts are concatenated at -O3.
  target_compile_options(talvor_warnings INTERFACE -Wno-restrict)
endif()

if(TALVOR_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
endif()
if(TALVOR_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
endif()
