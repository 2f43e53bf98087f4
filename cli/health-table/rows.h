// The rows of a health table, filled cell by cell first and printed only when all of them are known.
#pragma once

#include <cstddef>

struct field {
    char data[20];  // 19 characters; what is longer is cut
};

// A cell for each column, from left to right.
template <size_t kCells>
struct outdata {
    field tdata[kCells];
};

// The driver counts fans and sensors in a byte, and the sensors' table has one row more than it counts.
constexpr int kMaxRows = 256;

// Writes a cell as printf prints it.
__attribute__((format(printf, 2, 3))) void SetCell(field& cell, const char* format, ...);

void PrintCells(const field* cells, const int* widths, size_t count);

// Prints the row's cells and ends the line. widths: how wide each is at least, filled up with blanks on the
// right.
template <size_t kCells>
void PrintRow(const outdata<kCells>& row, const int (&widths)[kCells]) {
    PrintCells(row.tdata, widths, kCells);
}
