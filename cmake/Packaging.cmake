# Installed files and the Debian package, for the host and for the boards.
include(GNUInstallDirs)

# All files of the package have the time of the commit, so that the same commit gives the same
# package. SOURCE_DATE_EPOCH in the environment overrides that time.
set(epoch "$ENV{SOURCE_DATE_EPOCH}")
if(NOT epoch)
    execute_process(COMMAND git -C ${PROJECT_SOURCE_DIR} log -1 --format=%ct
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT epoch)
    string(TIMESTAMP epoch "%s" UTC)
endif()
set(ENV{SOURCE_DATE_EPOCH} ${epoch})
string(TIMESTAMP changelog_date "%a, %d %b %Y %H:%M:%S +0000" UTC)

set(maintainer "Dravikon maintainers <maintainers@dravikon.invalid>")
set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(packaged ${PROJECT_BINARY_DIR}/packaged)

# Manual pages and the changelog, compressed as Debian requires. The pages name the version, so that
# man shows it for the source page as well.
foreach(page dravikon dravikon-menu-check dravikon-preview)
    configure_file(${packaging}/${page}.1 ${packaged}/${page}.1 COPYONLY)
    file(READ ${packaging}/${page}.1 text)
    string(FIND "${text}" "\n.Os Dravikon ${PROJECT_VERSION}\n" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "packaging/${page}.1 does not have the version ${PROJECT_VERSION}")
    endif()
    list(APPEND pages ${packaged}/${page}.1.gz)
endforeach()
configure_file(${packaging}/changelog ${packaged}/changelog @ONLY)
foreach(file IN LISTS pages ITEMS ${packaged}/changelog.gz)
    string(REGEX REPLACE "\\.gz$" "" plain ${file})
    add_custom_command(OUTPUT ${file} COMMAND gzip -9nc ${plain} > ${file} DEPENDS ${plain} VERBATIM)
endforeach()
add_custom_target(packaged ALL DEPENDS ${pages} ${packaged}/changelog.gz)

install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${packaged}/changelog.gz ${packaging}/copyright
    docs/backend-tool.md docs/installing.md docs/menu-definition.md docs/reliability.md
    DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY packaging/examples DESTINATION ${CMAKE_INSTALL_DOCDIR}
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
install(DIRECTORY demo/web DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dravikon)
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "service console of a truck controller for a text terminal")
set(CPACK_PACKAGE_DESCRIPTION
    "Dravikon shows the menu of the controller's web interface on a plain VT100/ANSI
terminal. It evaluates the web interface's settings script, translates labels
with its tables, and reads and writes values by running the device's backend
tool. dravikon-menu-check reports what is wrong with a menu definition, and
dravikon-preview opens the console on one without a controller.")
set(CPACK_DEBIAN_PACKAGE_SECTION comm)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
if(DRAVIKON_ARCH)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${DRAVIKON_ARCH})
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
        ${DRAVIKON_SYSROOT}/usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}
        ${DRAVIKON_SYSROOT}/lib/${CMAKE_LIBRARY_ARCHITECTURE})
endif()
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# cpack reads these when it runs.
file(CONFIGURE OUTPUT ${packaged}/Settings.cmake CONTENT "set(ENV{SOURCE_DATE_EPOCH} @epoch@)\n"
    @ONLY)
file(CONFIGURE OUTPUT ${packaged}/Times.cmake @ONLY CONTENT
    "execute_process(COMMAND find \"\${CPACK_TEMPORARY_DIRECTORY}\" -exec touch --no-dereference --date=@@epoch@ {} +
    COMMAND_ERROR_IS_FATAL ANY)
")
set(CPACK_PROJECT_CONFIG_FILE ${packaged}/Settings.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${packaged}/Times.cmake)
include(CPack)
