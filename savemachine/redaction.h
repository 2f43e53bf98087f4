// Replaces the private values in the files of a copy, for the option --redact: serial numbers, MAC addresses,
// names and texts. Clears the data that no program reads.
#pragma once

#include <string>

#include "savemachine/replacements.h"

class Redaction {
  public:
    // Replaces the private values in a file of the copy. `path` is relative to the machine directory. The
    // file of the physical memory remains as it is.
    void RedactFile(const std::string& path, std::string& bytes);

    // Redacts the SMBIOS tables: `tables` are the bytes at pSMBTables. All records keep their offsets.
    void RedactTables(std::string& tables);

  private:
    void RedactEvents(std::string& log);
    void RedactRecord(std::string& tables, size_t record, size_t end);

    Replacements replacements_;
};
