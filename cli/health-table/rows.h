// The rows of a health table, filled cell by cell first and printed only when all of them are known.
#pragma once

#include <cstddef>

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

// A printed column: which cell of the row, and at least how wide, filled up with blanks on the right.
struct Column {
    int cell;
    int width;
};

void PrintCells(const outdata& row, const Column* columns, size_t count);

// Prints the row's columns in their order and ends the line.
template <size_t kCount>
void PrintRow(const outdata& row, const Column (&columns)[kCount]) {
    PrintCells(row, columns, kCount);
}
