#include "platform/sim/faults.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <new>

#include "src/utils/text.h"

namespace {

constexpr char kFile[] = "faults";
constexpr size_t kLargestFile = size_t{1} << 20;  // in bytes
constexpr char kAnyEvent[] = "cevt read *";
constexpr std::string_view kEventRead = "cevt read ";

// Parses the operand of a fault and appends it to `subject`, in the form in which calls are described.
// Returns false if the operand is invalid.
using ParseOperand = bool (*)(std::string_view text, std::string& subject);

bool AppendNumber(std::string_view text, uint64_t largest, std::string& subject) {
    uint64_t number = 0;
    if (!ReadNumber(text, largest, number)) return false;
    subject += std::to_string(number);
    return true;
}

bool TableName(std::string_view text, std::string& subject) {
    const size_t first = text.find('.');
    const size_t second = first == text.npos ? text.npos : text.find('.', first + 1);
    if (second == text.npos) return false;
    if (!AppendNumber(text.substr(0, first), UINT16_MAX, subject)) return false;
    subject += '.';
    if (!AppendNumber(text.substr(first + 1, second - first - 1), UINT8_MAX, subject)) return false;
    subject += '.';
    return AppendNumber(text.substr(second + 1), UINT8_MAX, subject);
}

bool Code(std::string_view text, std::string& subject) {
    return AppendNumber(text, INT_MAX, subject);
}

bool VariableName(std::string_view text, std::string& subject) {
    subject += text;
    return !text.empty() && text.find(' ') == text.npos;
}

// Accepts signed and unsigned numbers: a request contains a signed number, a log entry an unsigned one.
bool EventNumber(std::string_view text, std::string& subject) {
    if (text == "*") {
        subject += text;
        return true;
    }
    const bool negative = StartsWith(text, "-");
    uint64_t number = 0;
    if (!ReadNumber(text.substr(negative ? 1 : 0), negative ? uint64_t{1} << 31 : UINT32_MAX, number))
        return false;
    subject += std::to_string(static_cast<int32_t>(static_cast<uint32_t>(negative ? -number : number)));
    return true;
}

bool Address(std::string_view text, std::string& subject) {
    uint64_t address = 0;
    if (!ReadNumber(text, INT64_MAX, address)) return false;
    char formatted[sizeof "0x7fffffffffffffff"];
    std::snprintf(formatted, sizeof formatted, "0x%08llx", static_cast<unsigned long long>(address));
    subject += formatted;
    return true;
}

bool RequestNumber(std::string_view text, std::string& subject) {
    uint64_t number = 0;
    return ReadNumber(text, ULONG_MAX, number) && number != 0 && AppendNumber(text, ULONG_MAX, subject);
}

struct Form {
    std::string_view words;
    ParseOperand operand;  // null if the call has no operand
    int lowest, highest;   // the range of valid results
};

constexpr int kNegative = -INT_MAX;

// clang-format off
constexpr Form kForms[] = {
    {"open cdt",        nullptr,       kNegative, -1},
    {"open cevt",       nullptr,       kNegative, -1},
    {"open casr",       nullptr,       kNegative, -1},
    {"open crom",       nullptr,       kNegative, -1},
    {"cdt",             TableName,     kNegative, INT_MAX},
    {"casr",            Code,          kNegative, INT_MAX},
    {"crom read",       VariableName,  kNegative, INT_MAX},
    {"crom write",      VariableName,  kNegative, INT_MAX},
    {"cevt read",       EventNumber,   kNegative, INT_MAX},
    {"cevt clear",      nullptr,       kNegative, INT_MAX},
    {"xsvc open",       nullptr,       kNegative, -1},
    {"xsvc map",        Address,       kNegative, -1},
    {"picl initialize", nullptr,       1,         INT_MAX},
    {"picl root",       nullptr,       1,         INT_MAX},
    {"request",         RequestNumber, kNegative, INT_MAX},
};
// clang-format on

// Converts the first part of a line to the subject of the calls to which it applies. Returns false if it
// doesn't have this form.
bool ReadSubject(std::string_view text, const Form& form, std::string& subject) {
    if (!StartsWith(text, form.words)) return false;
    subject = form.words;
    text.remove_prefix(form.words.size());
    if (form.operand == nullptr) return text.empty();
    if (!StartsWith(text, " ")) return false;
    subject += ' ';
    return form.operand(text.substr(1), subject);
}

bool ReadResult(std::string_view text, const Form& form, int& result) {
    const bool negative = StartsWith(text, "-");
    uint64_t number = 0;
    if (!ReadNumber(text.substr(negative ? 1 : 0), INT_MAX, number)) return false;
    result = static_cast<int>(number);
    if (negative) result = -result;
    return result >= form.lowest && result <= form.highest;
}

}  // namespace

Faults::Faults() {
    const Descriptor machine = OpenMachine();
    if (!machine) return;
    const Descriptor file = OpenFile(machine, kFile);
    if (!file && errno == ENOENT) return;
    if (!file || !Read(file)) std::fprintf(stderr, "simulated machine: faults: %s\n", std::strerror(errno));
}

bool Faults::Read(const Descriptor& file) try {
    std::string text;
    if (!ReadWhole(file, kLargestFile, text)) return false;

    for (Lines lines(kFile, text); lines.Next();) {
        if (!ReadLine(lines.Line())) lines.Reject();
    }
    return true;
} catch (const std::bad_alloc&) {
    errno = ENOMEM;
    return false;
}

bool Faults::ReadLine(std::string_view line) {
    const size_t space = line.rfind(' ');
    if (space == line.npos) return false;
    Fault fault;
    for (const Form& form : kForms) {
        if (!ReadSubject(line.substr(0, space), form, fault.subject)) continue;
        if (!ReadResult(line.substr(space + 1), form, fault.result)) return false;
        faults_.push_back(fault);
        return true;
    }
    return false;
}

bool Faults::Find(std::string_view subject, unsigned long request, int* result) const {
    const std::string numbered = request != 0 ? "request " + std::to_string(request) : "";
    const auto matches = [&](const Fault& fault) {
        return fault.subject == subject || fault.subject == numbered ||
               (fault.subject == kAnyEvent && StartsWith(subject, kEventRead));
    };
    const auto fault = std::find_if(faults_.begin(), faults_.end(), matches);
    if (fault == faults_.end()) return false;
    *result = fault->result;
    return true;
}
