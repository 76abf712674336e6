# The sanitizers of SONARELLE_SANITIZER, over the whole build: code that is mixed with unwatched code reports nonsense.
# "Sanitized" is the build type that goes with them: assertions on, optimised just enough to run the tests in time.
set(CMAKE_CXX_FLAGS_SANITIZED "-O1 -g1 -fno-omit-frame-pointer")
set(CMAKE_EXE_LINKER_FLAGS_SANITIZED "")

if(SONARELLE_SANITIZER)
    add_compile_options(-fsanitize=${SONARELLE_SANITIZER} -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${SONARELLE_SANITIZER})
endif()

# What the tests of this build find in their environment.
set(SONARELLE_SANITIZER_ENVIRONMENT
    "ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1"
    "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1:suppressions=${CMAKE_SOURCE_DIR}/cmake/tsan.supp")

# In the fuzz build all code counts its branches, for the fuzzer to see where an input led.
if(SONARELLE_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "The fuzzers need clang: cmake --preset fuzz")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
