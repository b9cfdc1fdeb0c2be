# Lays out the application folder: `cmake --install build --prefix Kinbook`.
# The program and what it ships are refreshed each time. What a family has written there is laid down once and then left alone.

# All that must be built before the folder can be laid out.
add_custom_target(application DEPENDS kinbook empty_database icons)

install(TARGETS kinbook RUNTIME DESTINATION .)
install(FILES
  ${CMAKE_BINARY_DIR}/FamilyInfo_Empty.mdb
  ${CMAKE_BINARY_DIR}/TheLarkmoorIcon.ico
  ${CMAKE_BINARY_DIR}/TheIcon.ico
  DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/resources/help/help.html DESTINATION HelpFiles RENAME Helper.hlp)

# The copy goes through a second name, so that a copy cut off half-way is never taken for the family's own file.
install(CODE [[
  function(lay_down_once from to)
    if(EXISTS "${to}" OR IS_SYMLINK "${to}")
      return()
    endif()
    file(COPY_FILE "${from}" "${to}.new")
    file(RENAME "${to}.new" "${to}")
    message(STATUS "Laid down: ${to}")
  endfunction()
]])
install(CODE "
  set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
  file(MAKE_DIRECTORY \"\${folder}/Attachments\" \"\${folder}/Backup\")
  lay_down_once(\"${CMAKE_BINARY_DIR}/FamilyInfo_Empty.mdb\" \"\${folder}/FamilyInfo.mdb\")
  lay_down_once(\"${PROJECT_SOURCE_DIR}/resources/SplashDef.txt\" \"\${folder}/SplashDef.txt\")
")
