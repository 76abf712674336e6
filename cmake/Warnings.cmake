# sonarelle_warnings: what every target of our own code links; warnings are errors.
add_library(sonarelle_warnings INTERFACE)
target_compile_options(sonarelle_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
    $<$<CXX_COMPILER_ID:Clang>:-Wthread-safety>)

# GCC 12 reports overlapping and oversized copies inside std::string's own operators, in code that has none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(sonarelle_warnings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
