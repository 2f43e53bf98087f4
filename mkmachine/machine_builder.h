// Writes the files of a simulated machine, fact by fact. Used by mkmachine and by the tests.
#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

class MachineBuilder {
  public:
    // Begins a machine in a directory, which is created if it doesn't exist: the four devices of the health
    // driver with nothing in them, an empty event log. Every member throws std::system_error when a file
    // can't be written.
    explicit MachineBuilder(std::string directory);

    const std::string& Directory() const { return directory_; }

    // A record of a data table, as the driver reports it.
    template <typename Record>
    void Table(int type, int index, int index2, const Record& record) {
        Write(TableFile(type, index, index2), Plain(record));
    }
    void NoTable(int type, int index, int index2) { Remove(TableFile(type, index, index2)); }

    // A ROM variable. value: a record or a number, as the firmware keeps it.
    template <typename Record>
    void Variable(const char* name, const Record& value) {
        Variable(name, Plain(value));
    }
    void Variable(const char* name, const std::string& bytes) { Write("crom/" + std::string(name), bytes); }

    // The recovery timer's state.
    void Asr(bool enabled) { Write("casr/enabled", enabled ? "1\n" : "0\n"); }

    // Any file of the machine, by its path below the directory; replaced whole.
    void Write(const std::string& path, const std::string& bytes);
    void Append(const std::string& path, const std::string& bytes);
    void Remove(const std::string& path);

    // Physical memory from an address on; what was never written is a hole and reads as zeros.
    void PhysicalMemory(uint64_t address, const std::string& bytes);

    // A record's bytes.
    template <typename Record>
    static std::string Plain(const Record& record) {
        static_assert(std::is_trivially_copyable_v<Record> && !std::is_pointer_v<Record>);
        return std::string(reinterpret_cast<const char*>(&record), sizeof record);
    }

  private:
    static std::string TableFile(int type, int index, int index2);

    std::string directory_;
};
