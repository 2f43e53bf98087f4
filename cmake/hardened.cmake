# How an optimised build is compiled and linked.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# For every target: hardened, as far as the system's compiler and linker can. The program is loaded at an address
# that nobody knows beforehand, its tables of pointers can't be written once it runs, a guard stands behind the
# buffers on the stack, and calls of the C library know the size of the buffers they fill.
# Seen from outside: readelf -hldW FILE shows DYN, GNU_RELRO, NOW and PIE; nm -D FILE shows __stack_chk_fail and
# names that end in _chk.
check_linker_flag(CXX -pie BRANT_HAS_PIE)
check_cxx_compiler_flag(-fstack-protector-strong BRANT_HAS_STACK_PROTECTOR)
check_linker_flag(CXX -Wl,-z,relro,-z,now BRANT_HAS_RELRO)

set(release "$<CONFIG:Release>")
set(pie "$<AND:${release},$<BOOL:${BRANT_HAS_PIE}>>")
add_library(hardened INTERFACE)
target_compile_options(hardened INTERFACE
  "$<${release}:-ffunction-sections;-fdata-sections>"
  "$<${release}:-fno-threadsafe-statics>"  # the programs have one thread
  "$<${release}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_STACK_PROTECTOR}>>:-fstack-protector-strong>"
  "$<${pie}:-fPIE>")
target_link_options(hardened INTERFACE
  "$<${pie}:-pie>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_RELRO}>>:-Wl,-z,relro,-z,now>")

# For the programs: the C++ library and the compiler's support library are linked in, and what nothing uses of them
# and of our own code is left out. To load and bind them takes six times as long as all that a command does. The C
# library is the system's and stays shared.
check_linker_flag(CXX -Wl,--gc-sections BRANT_HAS_GC_SECTIONS)
check_linker_flag(CXX -Wl,-O1 BRANT_HAS_SYMBOL_HASH)  # a table of symbols that the loader searches quickly
add_library(own_cxx_library INTERFACE)
target_link_options(own_cxx_library INTERFACE
  "$<${release}:-static-libstdc++;-static-libgcc>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_GC_SECTIONS}>>:-Wl,--gc-sections>"
  "$<$<AND:${release},$<BOOL:${BRANT_HAS_SYMBOL_HASH}>>:-Wl,-O1>")
target_sources(own_cxx_library INTERFACE ${CMAKE_CURRENT_LIST_DIR}/terminate_handler.cpp)
