// What the displays of fans, temperature sensors and power supplies share: rows of text cells, the names of
// the places in the chassis, and the driver's older records.
#pragma once

#include <cstddef>
#include <cstdio>
#include <optional>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "include/data_tables.h"

struct field {
    char data[20];  // 19 characters; what is longer is cut
};

// A row of a table, a cell for each column. The cells' numbers aren't their order from left to right, and not
// every cell is printed.
struct outdata {
    field tdata[10];
};

// Writes a cell as printf prints it.
__attribute__((format(printf, 2, 3))) void SetCell(field& cell, const char* format, ...);

// A column of a table: the cell that it shows, and how wide that is at least, filled up with blanks on the
// right.
struct Column {
    int cell;
    int width;
};

// Prints a row's cells, column by column, and ends the line.
template <size_t kCount>
void PrintRow(const outdata& row, const Column (&columns)[kCount]) {
    for (const Column& column : columns) std::printf("%-*s", column.width, row.tdata[column.cell].data);
    std::printf("\n");
}

// The tables call some of the zones by different names.
enum class ZoneNames { OfFans, OfSensors };

// Where in the chassis a device sits: its zone, or the processor where the zone says which one it is.
field LocationName(LOCATIONDESIGNATOR location, ZoneNames names);

// The driver's older table of a family of devices, for one run of a command. Not every driver has it, or has
// a record for every device. Where there is one, its word on a device's presence goes before the common
// feature record's.
template <typename Record>
class OlderRecords {
  public:
    explicit OlderRecords(DataTableType table) : table_(table) {}

    // Returns the record of device `index` (from 0). After one failed request, returns nullopt without asking
    // again.
    std::optional<Record> Read(int index) {
        if (newway) return std::nullopt;
        if (const Reply<Record> reply{table_, index}) return *reply;
        newway = true;
        return std::nullopt;
    }

  private:
    DataTableType table_;
    bool newway = false;  // a request has failed: the common feature record describes every further device
};
