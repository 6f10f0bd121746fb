# How the library is installed, and what others find it by: a pkg-config file and a CMake package.
# Components are what packagers take apart: runtime, development, program, documentation.
include(CMakePackageConfigHelpers)

# The pkg-config file finds the rest from where it lies, so that what is installed can be moved.
set(pcLibdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
set(pcIncludedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(pcPrefix "${CMAKE_INSTALL_PREFIX}")
    set(pcLibdir "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(pcIncludedir "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
else()
    file(RELATIVE_PATH up "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
    string(REGEX REPLACE "/$" "" up "${up}")
    set(pcPrefix "\${pcfiledir}/${up}")
endif()

# What the static library needs besides.
set(pcInclude "")
if(kulguiCursesPc)
    list(GET kulguiCurses 0 1 modules)
    list(JOIN modules " " modules)
    set(pcCurses "Requires.private: ${modules}")
else()
    list(JOIN kulguiCurses " -l" names)
    set(pcCurses "Libs.private: -l${names}")
    # The headers of curses may have a folder of their own.
    get_filename_component(folder ${kulguiCursesInclude} NAME)
    if(folder MATCHES "^ncursesw?$")
        set(pcInclude " -I\${includedir}/${folder}")
    endif()
endif()

configure_file(kulgui.pc.in kulgui.pc @ONLY)
write_basic_package_version_file(kulgui-config-version.cmake COMPATIBILITY SameMajorVersion)

set(cmakeDirectory ${CMAKE_INSTALL_LIBDIR}/cmake/kulgui)
install(TARGETS kulgui EXPORT kulgui
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(EXPORT kulgui NAMESPACE kulgui:: FILE kulgui-config.cmake
    DESTINATION ${cmakeDirectory} COMPONENT development)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kulgui-config-version.cmake
    DESTINATION ${cmakeDirectory} COMPONENT development)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kulgui.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
