# Read by cpack before it begins: which packages the library needs, as dpkg-shlibdeps says.
set(scratch ${CPACK_TOPLEVEL_DIRECTORY}/depends)
file(MAKE_DIRECTORY ${scratch}/debian)
file(TOUCH ${scratch}/debian/control)
file(GLOB library ${CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS}/libkulgui.so.0.*)
execute_process(COMMAND dpkg-shlibdeps -O -e${library} WORKING_DIRECTORY ${scratch}
    OUTPUT_VARIABLE depends OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^.*Depends=" "" CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "${depends}")
