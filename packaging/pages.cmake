# usage: install_page(PAGE COMPONENT)
# A manual page of docs/man, compressed as Debian has them, in the folder of its section.
function(install_page page component)
  configure_file("${PROJECT_SOURCE_DIR}/docs/man/${page}" "${page}" COPYONLY)
  execute_process(COMMAND gzip -9nkf "${CMAKE_CURRENT_BINARY_DIR}/${page}" COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE ".*\\." "" section "${page}")
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${page}.gz"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man${section}" COMPONENT ${component})
endfunction()
