# VCM_PYTHON: an interpreter that sees what the tests need. The first of the path need not: Debian's modules
# are seen by Debian's own alone.
find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
if(NOT VCM_PYTHON)
  execute_process(COMMAND getconf PATH OUTPUT_VARIABLE places OUTPUT_STRIP_TRAILING_WHITESPACE)
  string(REPLACE ":" ";" places "${places}")
  find_program(system_python python3 PATHS ${places} NO_DEFAULT_PATH NO_CACHE)
  foreach(candidate IN ITEMS "${Python3_EXECUTABLE}" "${system_python}")
    execute_process(COMMAND "${candidate}" -c "import sys, pytest, mypy, numpy, pandas, matplotlib, distributed; sys.exit(sys.version_info < (3, 11))"
      RESULT_VARIABLE lacks OUTPUT_QUIET ERROR_QUIET)
    if(lacks EQUAL 0)
      set(VCM_PYTHON "${candidate}" CACHE FILEPATH "Python for the tests, with what they import")
      break()
    endif()
  endforeach()
endif()
if(NOT VCM_PYTHON)
  message(STATUS "No Python with pytest, mypy, numpy, pandas, matplotlib and distributed: the tests of pages and of the Python package are left out")
endif()
