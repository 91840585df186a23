# SPDX-License-Identifier: Apache-2.0
# What makes a fault in the code hard to use against the person: the flags of Debian's hardening=+all, and the two for
# the stack and for indirect jumps that later Debians add. tests/hardening looks for them in what was linked.
#
# Builds that are measured line by line or run under the sanitizers go without: the sanitizers see more, and the checked
# functions of libc would hide calls from them.
if(TAPEPRINT_SANITIZE OR TAPEPRINT_COVERAGE OR NOT TAPEPRINT_HARDENED)
  return()
endif()

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()

add_compile_options(-fstack-protector-strong)
foreach(flag -fstack-clash-protection -fcf-protection) # not every processor has the second
  string(MAKE_C_IDENTIFIER "has${flag}" has_flag)
  check_cxx_compiler_flag(${flag} ${has_flag})
  if(${has_flag})
    add_compile_options(${flag})
  endif()
endforeach()
# libc's checked functions need to know sizes, which only an optimizing compiler does.
add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
add_link_options(-Wl,-z,relro -Wl,-z,now)
