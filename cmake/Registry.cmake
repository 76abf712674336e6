# A test, scenario, fuzzer or benchmark that no target builds would rot unseen. Each function that makes such a target
# names here what it took; tests/scripts/registered_files.py compares the list with the tree.
define_property(GLOBAL PROPERTY SONARELLE_REGISTERED)

function(sonarelle_register)
    foreach(file IN LISTS ARGN)
        file(RELATIVE_PATH relative "${CMAKE_SOURCE_DIR}" "${file}")
        set_property(GLOBAL APPEND PROPERTY SONARELLE_REGISTERED "${relative}")
    endforeach()
endfunction()

function(sonarelle_write_registry)
    get_property(files GLOBAL PROPERTY SONARELLE_REGISTERED)
    list(JOIN files "\n" text)
    file(WRITE "${CMAKE_BINARY_DIR}/registered_files.txt" "${text}\n")
endfunction()
