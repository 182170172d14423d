# Debian packages, written by cpack from a build for the prefix /usr.
set(debian_dir ${CMAKE_CURRENT_LIST_DIR}/debian)

file(STRINGS ${debian_dir}/changelog newest_entry LIMIT_COUNT 1)
if(NOT newest_entry MATCHES "^zcommonwidgets \\(${PROJECT_VERSION}-([0-9]+)\\)")
    message(FATAL_ERROR "The newest entry of cmake/debian/changelog is not about ${PROJECT_VERSION}.")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
file(STRINGS ${debian_dir}/changelog signature REGEX "^ -- " LIMIT_COUNT 1)
string(REGEX REPLACE "^ -- (.*>)  .*" "\\1" CPACK_PACKAGE_CONTACT ${signature})

set(debian_architecture amd64)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
    set(debian_architecture arm64)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE
)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${debian_architecture})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SOURCE zcommonwidgets)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/FinishPackages.cmake)

# dpkg-shlibdeps has to know for which processor the libraries are.
file(WRITE ${PROJECT_BINARY_DIR}/CPackArchitecture.cmake "set(ENV{DEB_HOST_ARCH} ${debian_architecture})\n")
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/CPackArchitecture.cmake)

# Writes <file> to <compressed> as Debian wants it: as small as possible, and the same each time.
function(compress file compressed)
    find_program(GZIP_EXECUTABLE gzip REQUIRED)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    execute_process(COMMAND ${GZIP_EXECUTABLE} -9nc ${file} OUTPUT_FILE ${compressed})
endfunction()

compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_BINARY_DIR}/changelog.gz)
compress(${debian_dir}/changelog ${PROJECT_BINARY_DIR}/changelog.Debian.gz)

set(about "Zcommonwidgets draws widgets for the touch screens of embedded devices: labels
that report taps, icons that blink and turn, rounded dialogs and toasts,
buttons that know a tap from a drag, spinners, sliders and progress bars.
.
")

# The package <package> of what is installed as <component>, with changelogs and licence.
function(add_package component package)
    cmake_parse_arguments(arg "" "ARCHITECTURE;RECOMMENDS;SECTION;SUMMARY;TEXT" "COMPONENTS;DEPENDS" ${ARGN})
    string(TOUPPER ${component} id)
    string(JOIN ", " depends ${arg_DEPENDS})
    foreach(field IN ITEMS ARCHITECTURE RECOMMENDS SECTION)
        set(CPACK_DEBIAN_${id}_PACKAGE_${field} ${arg_${field}} PARENT_SCOPE)
    endforeach()
    set(CPACK_DEBIAN_${id}_PACKAGE_NAME ${package} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_PACKAGE_DEPENDS ${depends} PARENT_SCOPE)
    set(CPACK_DEBIAN_${id}_DESCRIPTION "${arg_SUMMARY}\n${about}${arg_TEXT}" PARENT_SCOPE)
    set(CPACK_COMPONENT_${id}_DEPENDS ${arg_COMPONENTS} PARENT_SCOPE)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)

    install(
        FILES
            ${debian_dir}/copyright
            ${PROJECT_BINARY_DIR}/changelog.gz
            ${PROJECT_BINARY_DIR}/changelog.Debian.gz
        DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}
        COMPONENT ${component}
        EXCLUDE_FROM_ALL
    )
endfunction()

set(CPACK_COMPONENTS_ALL)
add_package(library libzcommonwidgets${PROJECT_VERSION_MAJOR}
    SECTION libs
    SUMMARY "custom-drawn Qt widgets for touch screens"
    TEXT "This package contains the shared library."
)
add_package(development libzcommonwidgets-dev
    SECTION libdevel
    SUMMARY "custom-drawn Qt widgets for touch screens (development files)"
    TEXT "This package contains what applications are built with: the headers, and
files for CMake, pkg-config and qmake."
    COMPONENTS library
    DEPENDS qtbase5-dev libqt5svg5-dev
)
if(TARGET zcommonwidgetsdesigner)
    add_package(designer libzcommonwidgets-designer
        SECTION libdevel
        SUMMARY "custom-drawn Qt widgets for touch screens (Qt Designer plugin)"
        TEXT "This package contains the plugin that offers the widgets in Qt Designer."
        COMPONENTS library
        RECOMMENDS qttools5-dev-tools
    )
endif()
if(TARGET documentation)
    add_package(documentation libzcommonwidgets-doc
        ARCHITECTURE all
        SECTION doc
        SUMMARY "custom-drawn Qt widgets for touch screens (documentation)"
        TEXT "This package contains the documentation of all classes, for a browser and for
Qt Assistant."
    )
endif()

file(WRITE ${PROJECT_BINARY_DIR}/shlibs
    "libZcommonwidgets ${PROJECT_VERSION_MAJOR} libzcommonwidgets${PROJECT_VERSION_MAJOR} (>= ${PROJECT_VERSION})\n"
)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${debian_dir}/triggers ${PROJECT_BINARY_DIR}/shlibs)
foreach(id IN ITEMS LIBRARY DESIGNER)
    set(CPACK_DEBIAN_${id}_PACKAGE_SHLIBDEPS ON)
endforeach()
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)

include(CPack)

# What the packages hold, without the tests.
add_custom_target(packaged)
foreach(part IN ITEMS Zcommonwidgets zcommonwidgetsdesigner documentation)
    if(TARGET ${part})
        add_dependencies(packaged ${part})
    endif()
endforeach()
