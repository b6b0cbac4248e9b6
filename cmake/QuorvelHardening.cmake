# What makes a mistake in memory harder to use, on everything that is handed out. tests/package reads it back from the
# programs.
include(CheckCXXCompilerFlag)

# Some machines know no control-flow protection.
check_cxx_compiler_flag(-fcf-protection QUORVEL_HAS_CONTROL_FLOW_PROTECTION)

set(hardening -fPIE -fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
if(QUORVEL_HAS_CONTROL_FLOW_PROTECTION)
  list(APPEND hardening -fcf-protection)
endif()
add_compile_options("$<$<CONFIG:Release>:${hardening}>")
add_link_options("$<$<CONFIG:Release>:-pie;-Wl,-z,relro;-Wl,-z,now>")
