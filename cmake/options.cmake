# The language level and the warnings, as one target that every other target links.
add_library(quorvane_options INTERFACE)
target_compile_features(quorvane_options INTERFACE cxx_std_20)
target_compile_options(quorvane_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
  -Wno-missing-field-initializers)
# A product and a sum that a processor joins into one step are rounded once instead of twice; without
# this the digits would depend on the processor.
target_compile_options(quorvane_options INTERFACE -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 warns of std::string's own code where short texts are joined.
  target_compile_options(quorvane_options INTERFACE -Wno-restrict)
endif()
if(QUORVANE_WARNINGS_AS_ERRORS)
  target_compile_options(quorvane_options INTERFACE -Werror)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The kind of system that the program is for; sources and tests of one kind only are named after it.
set(QUORVANE_SYSTEM posix)
if(WIN32)
  set(QUORVANE_SYSTEM windows)
endif()
