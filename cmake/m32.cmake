# Compiles 32-bit programs, as the server needs them, with a compiler whose default is 64 bits.
set(CMAKE_CXX_FLAGS_INIT -m32)

# On Debian, uses the 32-bit libraries that tools/need-i386 has unpacked. A server has its own 32-bit libraries.
set(unpacked ${CMAKE_CURRENT_LIST_DIR}/../build/i386/usr)
if(EXISTS ${unpacked})
  list(APPEND CMAKE_PREFIX_PATH ${unpacked})
  set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
endif()
