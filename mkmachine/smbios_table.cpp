#include "mkmachine/smbios_table.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

constexpr uint8_t kMajorVersion = 2;

// Returns the checksum of `bytes`: the byte that makes the sum of all bytes 0, modulo 256. The checksum field
// must contain 0.
uint8_t Checksum(const uint8_t* bytes, size_t count) {
    return static_cast<uint8_t>(-std::accumulate(bytes, bytes + count, 0));
}

}  // namespace

SmbiosRecord::SmbiosRecord(uint8_t type, uint16_t handle) {
    Byte(type).Byte(sizeof(SMBIOS_HEADER)).Word(handle);
}

SmbiosRecord& SmbiosRecord::Number(uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) formatted_.push_back(static_cast<char>(value >> 8 * i));
    return *this;
}

SmbiosRecord& SmbiosRecord::Text(const std::string& text) {
    if (text.empty()) return Byte(0);
    strings_ += text + '\0';
    return Byte(static_cast<unsigned>(++string_count_));
}

SmbiosRecord& SmbiosRecord::TruncateTo(size_t length) {
    formatted_.resize(std::min(formatted_.size(), length));
    return *this;
}

std::string SmbiosRecord::Bytes() const {
    std::string formatted = formatted_;
    formatted[offsetof(SMBIOS_HEADER, byLength)] = static_cast<char>(formatted.size());
    return formatted + (strings_.empty() ? std::string(1, '\0') : strings_) + '\0';
}

SmbiosTable& SmbiosTable::Add(const SmbiosRecord& record) {
    const std::string bytes = record.Bytes();
    bytes_ += bytes;
    largest_record_ = std::max(largest_record_, bytes.size());
    ++records_;
    return *this;
}

SMBIOSEntryPoint SmbiosTable::EntryPoint(uint32_t address) const {
    SMBIOSEntryPoint entry{};
    std::memcpy(entry.sAnchorString, kEntryPointAnchor, sizeof entry.sAnchorString);
    std::memcpy(entry.sIntermediateAnchor, kIntermediateAnchor, sizeof entry.sIntermediateAnchor);
    entry.byEPSLength = sizeof entry;
    entry.byMajorVer = kMajorVersion;
    entry.byMinorVer = minor_version_;
    entry.byBCDRevision = static_cast<uint8_t>(kMajorVersion << 4 | minor_version_);
    entry.wMaxStructSize = static_cast<uint16_t>(largest_record_);
    entry.wSTLength = static_cast<uint16_t>(bytes_.size());
    entry.dwSTAddr = address;
    entry.wNumStructures = static_cast<uint16_t>(records_);
    SetChecksums(entry);
    return entry;
}

void SetChecksums(SMBIOSEntryPoint& entry) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&entry);
    constexpr size_t kIntermediate = offsetof(SMBIOSEntryPoint, sIntermediateAnchor);
    entry.byEPSChecksum = entry.byIntermediateChecksum = 0;
    entry.byIntermediateChecksum = Checksum(bytes + kIntermediate, sizeof entry - kIntermediate);
    entry.byEPSChecksum = Checksum(bytes, std::min<size_t>(entry.byEPSLength, sizeof entry));
}

void AddTables(MachineBuilder& machine, const SmbiosTable& table) {
    machine.PhysicalMemory(kTablesAddress, table.Bytes());
    machine.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(table.EntryPoint(kTablesAddress)));
}
