# The server's own ABI, 32 bits, by a compiler whose default is 64.
set(CMAKE_CXX_FLAGS_INIT -m32)

# On Debian, what tools/need-i386 has unpacked; the server finds its own.
set(unpacked ${CMAKE_CURRENT_LIST_DIR}/../build/i386/usr)
if(EXISTS ${unpacked})
  list(APPEND CMAKE_PREFIX_PATH ${unpacked})
  set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
endif()
