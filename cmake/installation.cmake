# What an installed Kinbook consists of: `cmake --install build --prefix PREFIX`, and the package by CPack.
# lib/kinbook is what the program ships; its script lay-out makes a family's folder of it, for ./run and for the launcher.

set(KINBOOK_RELEASE_DATE 2026-11-23)
set(KINBOOK_RELEASE_TIME "Mon, 23 Nov 2026 12:00:00 +0000")
set(CPACK_PACKAGE_CONTACT "Larkmoor Household Records <kinbook@larkmoor.org>")

set(desktop ${PROJECT_SOURCE_DIR}/resources/desktop)
set(made ${CMAKE_BINARY_DIR}/desktop)

foreach(name metainfo.xml kinbook.1 copyright changelog)
  configure_file(${desktop}/${name}.in ${made}/${name} @ONLY)
endforeach()
foreach(name kinbook.1 changelog)
  add_custom_command(OUTPUT ${made}/${name}.gz
    COMMAND gzip -9nkf ${made}/${name} DEPENDS ${made}/${name} VERBATIM)
endforeach()

# All that must be built before it can be installed.
add_custom_target(application DEPENDS kinbook empty_database icons ${made}/kinbook.1.gz ${made}/changelog.gz)

# The modes are the same whatever umask the builder has.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS kinbook RUNTIME DESTINATION lib/kinbook)
install(FILES
  ${CMAKE_BINARY_DIR}/FamilyInfo_Empty.mdb
  ${CMAKE_BINARY_DIR}/TheLarkmoorIcon.ico
  ${CMAKE_BINARY_DIR}/TheIcon.ico
  ${PROJECT_SOURCE_DIR}/resources/SplashDef.txt
  DESTINATION lib/kinbook)
install(FILES ${PROJECT_SOURCE_DIR}/resources/help/help.html DESTINATION lib/kinbook/HelpFiles RENAME Helper.hlp)
install(PROGRAMS ${desktop}/lay-out DESTINATION lib/kinbook)
install(PROGRAMS ${desktop}/kinbook DESTINATION bin)

install(FILES ${desktop}/kinbook.desktop DESTINATION share/applications)
install(FILES ${made}/metainfo.xml DESTINATION share/metainfo RENAME org.larkmoor.kinbook.metainfo.xml)
install(FILES ${made}/kinbook.1.gz DESTINATION share/man/man1)
install(FILES ${made}/copyright ${made}/changelog.gz DESTINATION share/doc/kinbook)
install(FILES ${PROJECT_SOURCE_DIR}/resources/kinbook.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size ${KINBOOK_ICON_SIZES})
  install(FILES ${CMAKE_BINARY_DIR}/icons/${size}.png
    DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME kinbook.png)
endforeach()

# The package. What the linker can't know: pictures and fonts that are read at run time.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kinbook)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, breeze-icon-theme, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "record book of one household")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Kinbook keeps all that a family would have to find in a hurry: who is in it,
and what each of them owns, owes, is insured for, is treated for and must not
forget. Files can be attached to any record, and any record can be printed.
All records lie in one file of the family; nothing leaves the computer.")
include(CPack)
