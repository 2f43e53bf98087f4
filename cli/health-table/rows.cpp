#include "cli/health-table/rows.h"

#include <cstdarg>
#include <cstdio>

void SetCell(field& cell, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(cell.data, sizeof cell.data, format, arguments);
    va_end(arguments);
}

void PrintCells(const field* cells, const int* widths, size_t count) {
    for (size_t i = 0; i < count; ++i) std::printf("%-*s", widths[i], cells[i].data);
    std::printf("\n");
}
