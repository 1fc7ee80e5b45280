# The library, its header, and what finds them: a CMake package and a pkg-config file.
install(TARGETS vcm EXPORT VcmTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
install(FILES "${PROJECT_SOURCE_DIR}/include/vcm/Vcm.h"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/vcm" COMPONENT development)

install(EXPORT VcmTargets NAMESPACE Vcm:: DESTINATION "${VCM_CMAKE_DIR}" COMPONENT development)
configure_package_config_file(VcmConfig.cmake.in VcmConfig.cmake INSTALL_DESTINATION "${VCM_CMAKE_DIR}")
write_basic_package_version_file(VcmConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/VcmConfig.cmake" "${CMAKE_CURRENT_BINARY_DIR}/VcmConfigVersion.cmake"
  DESTINATION "${VCM_CMAKE_DIR}" COMPONENT development)

# A pkg-config file tells its prefix from where it lies itself.
file(RELATIVE_PATH VCM_PREFIX_FROM_PKGCONFIG "/${VCM_PKGCONFIG_DIR}" "/")
string(REGEX REPLACE "/$" "" VCM_PREFIX_FROM_PKGCONFIG "${VCM_PREFIX_FROM_PKGCONFIG}")
configure_file(vcm.pc.in vcm.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/vcm.pc" DESTINATION "${VCM_PKGCONFIG_DIR}" COMPONENT development)

install_page(vcm.3 development)
