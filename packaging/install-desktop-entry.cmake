# Run by `cmake --install`, which sets CMAKE_INSTALL_PREFIX: makes ENTRY from TEMPLATE and puts it into the folder ENTRIES. The
# entry gives the full path of the command in the folder COMMANDS, unless every desktop looks there anyway.
cmake_path(ABSOLUTE_PATH COMMANDS BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
set(command prismfall)
if(NOT COMMANDS MATCHES "^/(app|usr|usr/local)/(bin|games)$")
    # Quoted as desktop entries require: once as an argument, and once more as a value in the file.
    string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" command "${COMMANDS}/prismfall")
    string(REPLACE "%" "%%" command "\"${command}\"")
endif()
configure_file("${TEMPLATE}" "${ENTRY}" @ONLY)
cmake_path(ABSOLUTE_PATH ENTRIES BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
file(INSTALL "${ENTRY}" DESTINATION "${ENTRIES}")
