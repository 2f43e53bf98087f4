// The health driver's request library, as the program sees it. The driver offers four device files under
// /dev/zethealth: cdt (data tables), cevt (event log), casr (recovery timer) and crom (ROM variables).
// The server's own is a C library, so the functions have C linkage.
#pragma once

constexpr int kReadWrite = 2;  // the one mode in which the program opens a device

extern "C" {

// Opens a device file. path: one of the four, zero-terminated. mode: kReadWrite.
// Result: a descriptor, 0 or more; below 0 when the device can't be opened.
int vxOpenRequest(char* path, int mode);

// Sends one request. code: the request's number on that device. arg: the device's request block, which the
// driver reads, and into which (or into the buffer that it names) the driver writes; owned by the caller.
// Result: 0 or the request's status, above 0; below 0, with errno set, when the call itself failed.
int vxIoctlRequest(int fd, int code, void* arg);

// Gives a descriptor of vxOpenRequest back.
void vxCloseRequest(int fd);

}  // extern "C"
