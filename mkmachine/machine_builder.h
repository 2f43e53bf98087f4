// Writes the files of a simulated machine. mkmachine and the tests use it.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

class MachineBuilder {
  public:
    // Starts a machine: creates `directory`, if it doesn't exist, the directories of the four devices and an
    // empty event log. All members that write throw std::system_error on failure.
    explicit MachineBuilder(std::string directory);

    const std::string& Directory() const { return directory_; }

    // Writes a record of a data table.
    template <typename Record>
    void Table(int type, int index, int index2, const Record& record) {
        Write(TableFile(type, index, index2), Plain(record));
    }
    void NoTable(int type, int index, int index2) { Remove(TableFile(type, index, index2)); }

    // Write a ROM variable. `value` is its record, or a number of the same size.
    template <typename Record>
    void Variable(const char* name, const Record& value) {
        Variable(name, Plain(value));
    }
    void Variable(const char* name, const std::string& bytes) { Write("crom/" + std::string(name), bytes); }

    // Sets the state of the recovery timer.
    void Asr(bool enabled) { Write("casr/enabled", enabled ? "1\n" : "0\n"); }

    // Replace a file of the machine, append to it, or remove it. `path` is relative to the machine directory.
    void Write(const std::string& path, const std::string& bytes);
    void Append(const std::string& path, const std::string& bytes);
    void Remove(const std::string& path);

    // Writes `bytes` to physical memory at `address`. Memory that was never written reads as zeros.
    void PhysicalMemory(uint64_t address, const std::string& bytes);

    // Returns the bytes of a record.
    template <typename Record>
    static std::string Plain(const Record& record) {
        static_assert(std::is_trivially_copyable_v<Record> && !std::is_pointer_v<Record>);
        return std::string(reinterpret_cast<const char*>(&record), sizeof record);
    }

  private:
    static std::string TableFile(int type, int index, int index2);

    std::string directory_;
};
