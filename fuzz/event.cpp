// Fuzzes the translation of a log entry into text.
//
// Input: one byte, the size of the text buffer; one byte of flags; then the entry. With flag 1, the entry is
// one of the management processor. With flag 2, the length in the entry's header is used, unless the input is
// shorter.
#include <algorithm>
#include <cstring>
#include <vector>

#include "cli/eventstr/eventstr.h"
#include "fuzz/target.h"

namespace {

constexpr uint8_t kFromProcessor = 1, kHeaderLength = 2;

// Return the entry in a buffer of exactly the bytes that the translator may read, so that the sanitizers
// detect a read beyond them.
std::vector<char> LogEntry(std::string bytes, bool use_header_length) {
    if (bytes.size() < sizeof(EVT_HEADER)) bytes.resize(sizeof(EVT_HEADER));
    const auto whole = static_cast<uint16_t>(std::min<size_t>(bytes.size(), UINT16_MAX));
    EVT_HEADER header;
    std::memcpy(&header, bytes.data(), sizeof header);
    header.wEvtLength = use_header_length ? std::min(header.wEvtLength, whole) : whole;
    std::memcpy(bytes.data(), &header, sizeof header);
    const bool has_length = header.wEvtLength >= sizeof header;
    bytes.resize(has_length ? std::min<size_t>(header.wEvtLength, kEventEntryCapacity) : kEventEntryCapacity);
    return {bytes.begin(), bytes.end()};
}

std::vector<char> ProcessorEntry(const std::string& bytes) {
    std::vector<char> entry(sizeof(EVT_IPMI_HEADER) + kIpmiPayloadCapacity);
    std::copy_n(bytes.begin(), std::min(bytes.size(), entry.size()), entry.begin());
    return entry;
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    const unsigned int text_size = data[0];
    const uint8_t flags = data[1];
    const std::string bytes = Input(data + 2, size - 2);
    const bool from_processor = (flags & kFromProcessor) != 0;

    std::vector<char> entry = from_processor ? ProcessorEntry(bytes) : LogEntry(bytes, flags & kHeaderLength);
    std::vector<char> text(text_size, '#');
    if (from_processor) {
        TranslateIPMIEventMessage(reinterpret_cast<PEVT_IPMI_LOG_ENTRY>(entry.data()), text.data(),
                                  text_size);
    } else {
        TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(entry.data()), text.data(), text_size);
    }
    Require(text_size == 0 || std::memchr(text.data(), '\0', text_size) != nullptr);
    return 0;
}
