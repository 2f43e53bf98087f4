# Compiler and linker options of optimised builds. docs/performance.md lists the cost or benefit of each.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# Hardening of every target, as far as the compiler and the linker support it: a random load address; tables of pointers
# that become read-only at start; a guard value after the buffers on the stack; and C library calls that check the size
# of the buffers that they fill.
# To check a program, run readelf -hldW FILE, which must print DYN, GNU_RELRO, NOW and PIE, and nm -D FILE, which must
# print __stack_chk_fail and names that end in _chk.
check_linker_flag(CXX -pie BRANT_HAS_PIE)
check_cxx_compiler_flag(-fstack-protector-strong BRANT_HAS_STACK_PROTECTOR)
check_linker_flag(CXX -Wl,-z,relro,-z,now BRANT_HAS_RELRO)

set(release "$<CONFIG:Release>")
set(pie "$<AND:${release},$<BOOL:${BRANT_HAS_PIE}>>")
add_library(hardened INTERFACE)
target_compile_options(hardened INTERFACE
  "$<${release}:-fno-threadsafe-statics>"  # the programs have one thread
  "$<${release}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_STACK_PROTECTOR}>>:-fstack-protector-strong>"
  "$<${pie}:-fPIE>")
target_link_options(hardened INTERFACE
  "$<${pie}:-pie>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_RELRO}>>:-Wl,-z,relro,-z,now>")

# Options for the programs. They link the C++ library and the compiler's support library statically, without unused
# functions, because loading these libraries dynamically takes six times as long as the rest of a run. The C library
# stays shared, so that system updates fix it, too.
check_linker_flag(CXX -Wl,--gc-sections BRANT_HAS_GC_SECTIONS)
add_library(own_cxx_library INTERFACE)
target_link_options(own_cxx_library INTERFACE
  "$<${release}:-static-libstdc++;-static-libgcc>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_GC_SECTIONS}>>:-Wl,--gc-sections>")
target_sources(own_cxx_library INTERFACE ${CMAKE_CURRENT_LIST_DIR}/terminate_handler.cpp)
