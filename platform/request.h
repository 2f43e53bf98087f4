// The health driver's request library. The driver has four device files in /dev/zethealth: cdt (data tables),
// cevt (event log), casr (recovery timer) and crom (ROM variables). The functions have C linkage, because the
// server's library is written in C.
#pragma once

constexpr int kReadWrite = 2;  // the only mode in which the program opens a device

extern "C" {

// Opens one of the four device files. `path` is NUL-terminated; `mode` is kReadWrite. Returns a descriptor,
// or a negative number if the device can't be opened.
int vxOpenRequest(char* path, int mode);

// Sends a request. `code` is the request's number on that device. `arg` is the device's request block, which
// the caller owns. The driver reads it and stores the reply in it, or in the buffer to which it points.
// Returns 0 or the request's status, which is positive; or a negative number, with errno set, if the call
// itself failed.
int vxIoctlRequest(int fd, int code, void* arg);

// Closes a descriptor of vxOpenRequest.
void vxCloseRequest(int fd);

}  // extern "C"
