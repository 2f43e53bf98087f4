#include "cli/health-table/rows.h"

#include <cstdarg>
#include <cstdio>

void SetCell(field& cell, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(cell.data, sizeof cell.data, format, arguments);
    va_end(arguments);
}

void PrintCells(const outdata& row, const Column* columns, size_t count) {
    for (size_t i = 0; i < count; ++i) {
        std::printf("%-*s", columns[i].width, row.tdata[columns[i].cell].data);
    }
    std::printf("\n");
}
