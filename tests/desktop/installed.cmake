# Installs into a folder of the test's own and looks at what is there.
#   cmake -D BUILD=... -D SCRIPT=... -D NUMERELLO=... -D CLI=... -D VERSION=... -P installed.cmake
set(destination ${BUILD}/desktop/installed)
file(REMOVE_RECURSE ${destination})
execute_process(
    COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${destination}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND ${SCRIPT} ${destination} ${NUMERELLO} ${CLI} ${VERSION}
    COMMAND_ERROR_IS_FATAL ANY)
