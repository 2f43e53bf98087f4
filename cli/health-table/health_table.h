// Code shared by the commands that show fans, temperature sensors and power supplies: tables made of cells,
// names of locations in the chassis, and the driver's legacy records.
#pragma once

#include <cstddef>
#include <cstdio>
#include <optional>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "include/data_tables.h"

struct field {
    char data[20];  // a string, truncated to 19 characters
};

// A row of a table. A cell's index differs from its column, and some cells are never printed.
struct outdata {
    field tdata[10];
};

// Formats a cell like printf.
__attribute__((format(printf, 2, 3))) void SetCell(field& cell, const char* format, ...);

// A table column: the cell that it prints and its minimum width (left-aligned, padded with spaces).
struct Column {
    int cell;
    int width;
};

// Prints a line: the cells of `row`, column by column.
template <size_t kCount>
void PrintRow(const outdata& row, const Column (&columns)[kCount]) {
    for (const Column& column : columns) std::printf("%-*s", column.width, row.tdata[column.cell].data);
    std::printf("\n");
}

// Some zones have different names in the table of fans and in that of sensors.
enum class ZoneNames { OfFans, OfSensors };

// Returns the name of a device's zone in the chassis. In the zone of a numbered processor, returns "CPU#" and
// the number.
field LocationName(LOCATIONDESIGNATOR location, ZoneNames names);

// Reads the driver's legacy table of a family of devices during one command. Not every driver has this table,
// or a record in it for every device. If a device has a legacy record, its presence is taken from there
// instead of the common feature record.
template <typename Record, DataTableType kTable>
class LegacyRecords {
  public:
    // Returns the record of device `index` (from 0). After one failed request, returns nullopt without
    // another request.
    std::optional<Record> Read(int index) {
        if (newway) return std::nullopt;
        if (const Reply<Record> reply{kTable, index}) return *reply;
        newway = true;
        return std::nullopt;
    }

  private:
    bool newway = false;  // true: a request has failed; only the common feature records are read now
};
