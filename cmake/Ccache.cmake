# Compiles through ccache where it is installed. The sloppiness lets it work with precompiled headers; the base
# directory and the hash without the working directory let the builds of one tree share results.
find_program(SONARELLE_CCACHE ccache)
if(SONARELLE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env
        "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
        "CCACHE_NOHASHDIR=1"
        "${SONARELLE_CCACHE}")
endif()
