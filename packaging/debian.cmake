# The Debian packages: `cpack` in a build tree that was configured for the prefix /usr (scripts/package
# does it).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libvcm)
set(CPACK_PACKAGE_VENDOR "The libvcm developers")
set(CPACK_PACKAGE_CONTACT "The libvcm developers <developers@libvcm.example>")
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL runtime development program python)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/host")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(runtime_package "libvcm${VCM_SOVERSION}")

# usage: debian_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION)
# The package of a component, with the papers that Debian wants in each.
function(debian_package component name section summary description)
  string(TOUPPER "${component}" upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME "${name}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION "${section}" PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)

  set(papers "${CMAKE_CURRENT_BINARY_DIR}/debian/${name}")
  set(VCM_PACKAGE "${name}")
  configure_file(debian/changelog.in "${papers}/changelog" @ONLY)
  execute_process(COMMAND gzip -9nf "${papers}/changelog" COMMAND_ERROR_IS_FATAL ANY)
  install(FILES "${papers}/changelog.gz" debian/copyright
    DESTINATION "share/doc/${name}" COMPONENT ${component} EXCLUDE_FROM_ALL)
  if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/debian/${name}.lintian-overrides")
    install(FILES "debian/${name}.lintian-overrides"
      DESTINATION share/lintian/overrides RENAME "${name}" COMPONENT ${component} EXCLUDE_FROM_ALL)
  endif()
endfunction()

debian_package(runtime "${runtime_package}" libs
  "in-memory store of SP Vector/Covariance Messages"
  "libvcm keeps SP Vector/Covariance Messages (VCMs) of satellites in memory:
it loads and saves files, takes text and arrays, finds messages by a 64-bit
key, reads and changes their fields, and converts between all forms. This
package holds the shared library and the host that it comes with.")
configure_file(debian/shlibs.in debian/shlibs @ONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  "${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers" "${CMAKE_CURRENT_BINARY_DIR}/debian/shlibs")

debian_package(development libvcm-dev libdevel
  "in-memory store of SP Vector/Covariance Messages - development"
  "libvcm keeps SP Vector/Covariance Messages (VCMs) of satellites in memory.
This package holds what programs in C, C++ and Fortran are built with: the
header, a CMake package, a pkg-config file and the manual page.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")

debian_package(program vcm science
  "lists, shows, checks, compares, converts and edits files of VCMs"
  "vcm works on files of SP Vector/Covariance Messages (VCMs) of satellites: it
lists and shows what they hold, says what is wrong in them, compares two
files, changes fields, and converts between the multi-line and one-line
forms, JSON and CSV.")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SUGGESTS "bash-completion")

debian_package(python python3-vcm python
  "in-memory store of SP Vector/Covariance Messages - Python 3"
  "libvcm keeps SP Vector/Covariance Messages (VCMs) of satellites in memory.
This package is its Python interface: records as typed objects, the store as
a numpy array, and pictures of a catalogue.")
set(CPACK_DEBIAN_PYTHON_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS OFF)
# Modules are compiled when the package comes, and what was compiled goes with it.
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
  "${CMAKE_CURRENT_SOURCE_DIR}/debian/python/postinst" "${CMAKE_CURRENT_SOURCE_DIR}/debian/python/prerm")
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "python3 (>= 3.11), ${runtime_package} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_RECOMMENDS "python3-numpy")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-matplotlib, python3-pandas")

include(CPack)
