// The rows of a health table, filled cell by cell first and printed only when all of them are known.
#pragma once

struct field {
    char data[20];  // 19 characters; what is longer is cut
};

struct outdata {
    field tdata[10];
};

// The driver counts fans and sensors in a byte, and the sensors' table has one row more than it counts.
constexpr int kMaxRows = 256;

// Writes a cell as printf prints it.
__attribute__((format(printf, 2, 3))) void SetCell(field& cell, const char* format, ...);

constexpr const char* YesNo(bool yes) {
    return yes ? "Yes" : "No";
}
