#include "savemachine/redaction.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <vector>

#include "cli/command/state.h"
#include "cli/smbios_old/smbios.h"
#include "include/health_records.h"
#include "include/memory_records.h"
#include "include/rom_variables.h"
#include "include/smbios_records.h"
#include "savemachine/event_strings.h"

namespace {

// A type of SMBIOS record that the programs read, and the parts of it that a redacted copy keeps. The strings
// are those that the programs read, except serial numbers.
struct KnownRecord {
    uint8_t type;
    size_t size;        // size of the leading fields
    size_t strings[2];  // offsets of the fields that contain the numbers of the strings; 0: none
};
// clang-format off
constexpr KnownRecord kKnownRecords[] = {
    {smbios::Bios::kType,                    24, {smbios::Bios::kVersion.offset, smbios::Bios::kDate.offset}},
    {smbios::System::kType,                  27, {smbios::System::kProductName.offset}},
    {smbios::Processor::kType,               42, {smbios::Processor::kSocket.offset}},
    {smbios::Cache::kType,                   19, {}},
    {smbios::MemoryArray::kType,             15, {}},
    {smbios::MemoryDevice::kType,            28, {smbios::MemoryDevice::kLocator.offset}},
    {ZTSMBIOS_ZET_PROC_INFO::kType,          sizeof(ZTSMBIOS_ZET_PROC_INFO), {}},
    {ZTSMBIOS_ZET_DIMM_LOCATION_INFO::kType, sizeof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO), {}},
    {ZTSMBIOS_ZET_RACK_INFO::kType,          sizeof(ZTSMBIOS_ZET_RACK_INFO), {smbios::kEnclosureBay.offset}},
    {smbios_nic_table::kType,                UINT8_MAX, {}},
    {SMBIOS_NIC_PORT_MAP_INFO::kType,        sizeof(SMBIOS_NIC_PORT_MAP_INFO), {}},
};
// clang-format on

constexpr size_t kUuidOffset = 8;  // in the system record

bool StartsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

// Returns the prefix of the paths of a table's records, such as "cdt/356.".
std::string PathOf(DataTableType table) {
    return "cdt/" + std::to_string(table) + '.';
}

void Clear(std::string& bytes, Part part) {
    const size_t end = std::min(bytes.size(), part.offset + part.size);
    if (part.offset < end) std::fill(&bytes[part.offset], &bytes[0] + end, '\0');
}

// Clears the fields that are copied from the module's presence-detect (SPD) data, such as its serial number.
void ClearPresenceDetect(std::string& record) {
    constexpr size_t kInfo = offsetof(RESMEM_DIMM_CONFIG, dimmInfo);
    Clear(record, {kInfo + offsetof(RESMEM_DIMM_INFO, keyBytes), sizeof(KEY_INFO)});
    constexpr size_t kValid = kInfo + offsetof(RESMEM_DIMM_INFO, ulValidSPD);
    Clear(record, {kValid, sizeof(RESMEM_DIMM_CONFIG) - kValid});
}

// Returns the numbers of a record's strings that the copy keeps.
std::vector<size_t> KeptStrings(const KnownRecord* known, Bytes formatted) {
    std::vector<size_t> kept;
    if (known == nullptr) return kept;
    for (const size_t field : known->strings) {
        if (field != 0) kept.push_back(ReadField<uint8_t>(formatted, field));
    }
    return kept;
}

}  // namespace

void Redaction::RedactFile(const std::string& path, std::string& bytes) {
    const Part whole = {0, bytes.size()};
    constexpr size_t kFanName = offsetof(FANDDATA, Evt) + offsetof(EVT_MACH_FAN_FAIL, cChassisName);
    constexpr size_t kPartNumber =
        offsetof(RESMEM_DIMM_CONFIG, dimmInfo) + offsetof(RESMEM_DIMM_INFO, partNumber);
    if (path == std::string("crom/") + kAssetVariable || path == std::string("crom/") + kServerNameVariable) {
        replacements_.ReplaceTexts(bytes, whole);
    } else if (path == std::string("crom/") + kNicAddressVariable) {
        for (size_t nic = 0; nic < bytes.size(); nic += sizeof(smbios_nic)) {
            replacements_.ReplaceMac(bytes, nic + offsetof(smbios_nic, nic_mac));
        }
    } else if (StartsWith(path, PathOf(kFanDataTable))) {
        replacements_.ReplaceTexts(bytes, {kFanName, offsetof(FANDDATA, ucType) - kFanName});
    } else if (StartsWith(path, PathOf(kCartridgeTable))) {
        replacements_.ReplaceTexts(bytes,
                                   {offsetof(CartridgePrefix, partName), sizeof(CartridgePrefix::partName)});
    } else if (StartsWith(path, PathOf(kModuleConfigTable))) {
        ClearPresenceDetect(bytes);
        replacements_.ReplaceTexts(bytes, {kPartNumber, sizeof(RESMEM_DIMM_INFO::partNumber)});
    } else if (StartsWith(path, PathOf(kModuleStatusTable))) {
        Clear(bytes, {offsetof(RESMEM_DIMM_STATUS, reserved), sizeof(RESMEM_DIMM_STATUS::reserved)});
    } else if (path == "cevt/hlog") {
        RedactEvents(bytes);
    }
}

// Replaces the strings of all entries. Clears the payloads of events without a known record.
void Redaction::RedactEvents(std::string& log) {
    for (size_t entry = 0; log.size() - entry >= sizeof(EVT_HEADER);) {
        const auto* const bytes = reinterpret_cast<const uint8_t*>(&log[entry]);
        const auto header = CopyOf<EVT_HEADER>(bytes);
        const size_t size = std::clamp<size_t>(header.wEvtLength, sizeof header, log.size() - entry);
        const Bytes payload = {bytes + sizeof header, size - sizeof header};
        const auto strings = OffsetOfStrings(header.wClass, header.wCode, payload);
        const size_t kept = std::min(strings.value_or(0), payload.size);
        const Part rest = {entry + sizeof header + kept, payload.size - kept};
        if (strings) {
            replacements_.ReplaceTexts(log, rest);
        } else {
            Clear(log, rest);
        }
        entry += size;
    }
}

void Redaction::RedactTables(std::string& tables) {
    size_t end = 0;
    for (unsigned char* record = nullptr; SmbGetRecord(&record) == TRUE;) {
        const auto offset = static_cast<size_t>(record - pSMBTables);
        end = offset + smb_record_sizes[offset];
        RedactRecord(tables, offset, end);
    }
    Clear(tables, {end, tables.size() - end});
}

// Redacts the record from offset `record` to `end`.
void Redaction::RedactRecord(std::string& tables, size_t record, size_t end) {
    const Bytes formatted = SmbFormattedArea(&tables[record]);
    const uint8_t type = formatted.data[offsetof(SMBIOS_HEADER, byType)];
    const auto* known = std::find_if(std::begin(kKnownRecords), std::end(kKnownRecords),
                                     [=](const KnownRecord& candidate) { return candidate.type == type; });
    if (known == std::end(kKnownRecords)) known = nullptr;

    const std::vector<size_t> kept = KeptStrings(known, formatted);
    size_t number = 1;
    for (size_t text = record + formatted.size; text < end; ++number) {
        const size_t size = std::strlen(&tables[text]);
        const bool keep = std::find(kept.begin(), kept.end(), number) != kept.end();
        if (!keep) replacements_.ReplaceTexts(tables, {text, std::min(size, end - text)});
        text += size + 1;
    }

    const size_t fields = std::min(formatted.size, known != nullptr ? known->size : sizeof(SMBIOS_HEADER));
    Clear(tables, {record + fields, formatted.size - fields});
    if (type == smbios::System::kType && fields >= kUuidOffset + kUuidSize) {
        replacements_.ReplaceUuid(tables, record + kUuidOffset);
    }
    if (type != smbios_nic_table::kType) return;
    size_t nic = offsetof(smbios_nic_table, nic_nics);
    for (; nic + sizeof(smbios_nic) <= fields; nic += sizeof(smbios_nic)) {
        replacements_.ReplaceMac(tables, record + nic + offsetof(smbios_nic, nic_mac));
    }
    if (nic < fields) Clear(tables, {record + nic, fields - nic});  // an incomplete entry
}
