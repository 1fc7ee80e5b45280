# The host framework's own libraries in place of the bundled host. They export the functions that
# src/Host declares, under the same library names.
foreach(name hostcore hostcalendar hostorbit)
  find_library(VCM_${name} ${name} HINTS "${VCM_HOST_LIBRARY_DIR}" REQUIRED NO_CACHE)
  add_library(${name} SHARED IMPORTED GLOBAL)
  set_target_properties(${name} PROPERTIES IMPORTED_LOCATION "${VCM_${name}}")
endforeach()
