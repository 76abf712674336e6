# The target pictures draws the pictures of the program's folder from assets/ into SONARELLE_PICTURES_DIR.
set(SONARELLE_PICTURES_DIR "${CMAKE_BINARY_DIR}/pictures")

find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(GLOB drawings CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/assets/*.svg")
set(pictures_script "${CMAKE_SOURCE_DIR}/scripts/pictures")
# The help opens the operator's guide, which lies beside them with its own pictures.
set(operators_guide "${CMAKE_SOURCE_DIR}/docs/guide.md")
file(GLOB guide_pictures CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/docs/images/*.png")
list(FILTER guide_pictures EXCLUDE REGEX "/ecran_") # whole screens, which it doesn't show
# One stamp for all: names of pictures hold blanks, and a picture that left the table must leave the folder.
add_custom_command(OUTPUT "${CMAKE_BINARY_DIR}/pictures.stamp"
    COMMAND ${CMAKE_COMMAND} -E rm -rf "${SONARELLE_PICTURES_DIR}"
    COMMAND Python3::Interpreter -B "${pictures_script}" "${SONARELLE_PICTURES_DIR}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${SONARELLE_PICTURES_DIR}/guide/images"
    COMMAND ${CMAKE_COMMAND} -E copy "${operators_guide}" "${SONARELLE_PICTURES_DIR}/guide"
    COMMAND ${CMAKE_COMMAND} -E copy ${guide_pictures} "${SONARELLE_PICTURES_DIR}/guide/images"
    COMMAND ${CMAKE_COMMAND} -E touch "${CMAKE_BINARY_DIR}/pictures.stamp"
    DEPENDS "${pictures_script}" "${operators_guide}" ${guide_pictures} ${drawings}
    COMMENT "Drawing the pictures"
    VERBATIM)
add_custom_target(pictures ALL DEPENDS "${CMAKE_BINARY_DIR}/pictures.stamp")
# A desk without them refuses to start.
add_dependencies(sonarelle pictures)
install(DIRECTORY "${SONARELLE_PICTURES_DIR}/" DESTINATION share/sonarelle)

# Programs that run from the build tree find the pictures here.
set(program_files "${CMAKE_SOURCE_DIR}/src/platform/host/program_files.cpp")
set_property(SOURCE "${program_files}" DIRECTORY "${CMAKE_SOURCE_DIR}/src"
    APPEND PROPERTY COMPILE_DEFINITIONS "SONARELLE_PICTURES_DIR=\"${SONARELLE_PICTURES_DIR}\"")
set_property(SOURCE "${program_files}" DIRECTORY "${CMAKE_SOURCE_DIR}/src" PROPERTY SKIP_PRECOMPILE_HEADERS ON)
