# The program, its page and its completion. It carries the library and finds the host beside the
# installed one.
file(RELATIVE_PATH host_from_program "/${CMAKE_INSTALL_BINDIR}" "/${VCM_HOST_DIR}")
set_target_properties(vcm-program PROPERTIES INSTALL_RPATH "$ORIGIN/${host_from_program}")

install(TARGETS vcm-program RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT program)
install(FILES "${PROJECT_SOURCE_DIR}/tools/vcm/completion/vcm.bash"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" RENAME vcm COMPONENT program)
install_page(vcm.1 program)
