# The bundled host, in a folder of its own beside the library, and its headers.
set(VCM_HOST_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}/vcm")

install(TARGETS hostcore hostcalendar hostorbit EXPORT VcmTargets
  LIBRARY DESTINATION "${VCM_HOST_DIR}" COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/host/include/host"
  DESTINATION "${VCM_HOST_INCLUDE_DIR}" COMPONENT development)
configure_file(vcm-host.pc.in vcm-host.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/vcm-host.pc"
  DESTINATION "${VCM_PKGCONFIG_DIR}" COMPONENT development)
