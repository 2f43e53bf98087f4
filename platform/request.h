// The health driver's request library. The driver has four device files in /dev/zethealth: cdt (data tables),
// cevt (event log), casr (recovery timer) and crom (ROM variables). The functions have C linkage, because the
// server's library is written in C.
#pragma once

constexpr int kReadWrite = 2;  // the only mode in which the program opens a device

extern "C" {

// Opens one of the four device files. `path` is NUL-terminated; `mode` is kReadWrite. Returns a descriptor,
// or a negative number if the device can't be opened.
int vxOpenRequest(char* path, int mode);

// Sends a request. `code` is the number of a request that the device accepts. `arg` is the request block,
// which the caller owns. The driver reads it and stores the reply in the block itself, or in the buffer that
// it points to. Returns 0 or the request's status, which is positive. If the call itself fails, returns a
// negative number and sets errno.
int vxIoctlRequest(int fd, int code, void* arg);

// Closes a descriptor that vxOpenRequest returned.
void vxCloseRequest(int fd);

}  // extern "C"
