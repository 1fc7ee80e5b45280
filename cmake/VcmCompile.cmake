# What every target of this project is compiled with: vcm_compile(TARGET).

set(VCM_SANITIZE "" CACHE STRING "Sanitizers to build with, for instance address,undefined")
option(VCM_COVERAGE "Instrument for coverage" OFF)
# Such a build is not for programs from elsewhere, interpreters among them: nobody installs it.
set(VCM_INSTRUMENTED FALSE)
if(VCM_SANITIZE OR VCM_COVERAGE)
  set(VCM_INSTRUMENTED TRUE)
endif()

find_package(Threads REQUIRED)

add_library(vcm_compile_options INTERFACE)
target_compile_features(vcm_compile_options INTERFACE cxx_std_20 c_std_99)
target_link_libraries(vcm_compile_options INTERFACE Threads::Threads)
if(VCM_DEVELOPER)
  target_compile_options(vcm_compile_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  # GCC 12 sees overlaps in std::string operations where there are none (its bug 105651).
  target_compile_options(vcm_compile_options INTERFACE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
endif()
if(VCM_SANITIZE)
  target_compile_options(vcm_compile_options INTERFACE
    -fsanitize=${VCM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vcm_compile_options INTERFACE -fsanitize=${VCM_SANITIZE})
  if(VCM_SANITIZE MATCHES address)
    # Compilers do not agree on how to tell a source so.
    target_compile_definitions(vcm_compile_options INTERFACE VCM_ADDRESS_SANITIZER)
  endif()
endif()
if(VCM_COVERAGE)
  target_compile_options(vcm_compile_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(vcm_compile_options INTERFACE --coverage)
endif()

function(vcm_compile target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:vcm_compile_options>)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    C_EXTENSIONS OFF
    POSITION_INDEPENDENT_CODE ON)
endfunction()
