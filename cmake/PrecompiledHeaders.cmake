# The standard library's headers, parsed once for all of src/, and once more with GoogleTest for all of tests/.
# Only precompiled: a file still includes what it uses, which the fuzz build (SONARELLE_PCH off) checks.
set(SONARELLE_STANDARD_HEADERS
    <algorithm> <array> <atomic> <chrono> <cmath> <condition_variable> <cstdint> <cstring> <deque> <exception>
    <filesystem> <fstream> <functional> <iostream> <limits> <map> <memory> <mutex> <numeric> <optional> <random>
    <set> <span> <sstream> <stdexcept> <string> <string_view> <thread> <tuple> <unordered_map> <utility> <variant>
    <vector>)

# The one source of a library that has none; written only when it changes, so that nothing is built again.
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/generated/empty.cpp" CONTENT "// No source yet.\n")

# Makes the object library NAME that holds a precompiled header; LIBRARIES bring the include directories and flags.
function(sonarelle_make_pch name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LIBRARIES" ${ARGN})
    add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/generated/empty.cpp")
    target_link_libraries(${name} PRIVATE sonarelle_warnings ${ARG_LIBRARIES})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    # Clang: no time stamps in the header, so ccache may hand it out again.
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>)
endfunction()

# Lets TARGET use the header of the object library PCH.
function(sonarelle_use_pch target pch)
    if(SONARELLE_PCH)
        target_precompile_headers(${target} REUSE_FROM ${pch})
    endif()
endfunction()

if(SONARELLE_PCH)
    sonarelle_make_pch(sonarelle_pch HEADERS ${SONARELLE_STANDARD_HEADERS} LIBRARIES Threads::Threads)
endif()
