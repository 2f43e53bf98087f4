// SHOW HLOG and CLEAR HLOG: the firmware's event log, over the cevt device.
#include "cli/misc-commands/event_log.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <memory>
#include <new>

#include "cli/command/command.h"
#include "cli/eventstr/eventstr.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "platform/request.h"
#include "src/utils/text.h"

namespace {

// The length preset in the entry, what the driver may fill: a header and 256 bytes of payload of a read's
// 296.
constexpr size_t kNotPreset = kEventReadSize - 284;
constexpr int kRoomAroundText = 128;  // bytes of an entry's lines beside its text, at the most
constexpr int kRequestsAScreen = 6;
constexpr int kMostTooSmall = 2 * kRequestsAScreen;  // such answers in a row, after which the listing ends

// Stops a listing after each screen until a key is pressed.
class Pager {
  public:
    // Counts a request; at the end of a screen, asks. False when the user has seen enough.
    bool GoOn();

  private:
    static constexpr int kOff = -1;
    int displayed_ = 0;  // requests since the last prompt, or kOff
};

bool Pager::GoOn() {
    if (displayed_ == kOff || ++displayed_ < kRequestsAScreen) return true;

    displayed_ = 0;
    std::printf(
        "\nPress q to quit, c to continue without pagination\n"
        "or any other key to see the next screen.: ");
    std::fflush(stdout);
    const int key = std::fgetc(stdin);
    if (key == 'q' || key == 'Q') return false;
    if (key == 'c' || key == 'C') displayed_ = kOff;
    std::printf("\n");
    return true;
}

constexpr CodeText kSeverities[] = {
    {kInformational, "INFO"}, {kNotice, "INFO"},       {kRepaired, "REPAIRED"},
    {kCaution, "CAUTION"},    {kCritical, "CRITICAL"},
};

constexpr char kNotDefined[] = "Not defined";

// By EVT_HEADER::wClass.
constexpr char EventClass[][28] = {
    "EVT_CLASS_EMPTY",  // 0
    "EVT_CLASS_TEST",
    "Machine Environment",
    "Main Memory",
    "Cache Memory",  // 4
    "CPU",
    "Host Bus",
    "EISA Bus",
    "PCI Bus",  // 8
    "Expansion Slot",
    "POST Messages",
    "Power Subsystem",
    "UPS",  // 12
    "ASR",
    "OS Class",
    "DIAGS",
    "Not defined",  // 16
    "Network Adapter",
    "SCSI Subsystem",
    "Drive Array Subsystem",
    "Unrecoverable System Error",  // 20
    "Not defined",
    "Not defined",
    "Not defined",
    "Not defined",  // 24
    "Not defined",
    "Not defined",
    "Not defined",
    "Not defined",  // 28
    "Not defined",
    "Not defined",
    "Not defined",
    "System Revision",  // 32
    "Maintenance Note",
    "Infrastructure Environment",
};

// Control characters, and bytes that aren't ASCII, would disturb the terminal.
void BlankUnprintable(char* text) {
    for (; *text != '\0'; ++text) {
        if (static_cast<signed char>(*text) < ' ') *text = ' ';
    }
}

// "03/15/2006 14:07".
void WriteTime(const EVT_TIME_STAMP& time, TextWriter& out) {
    out.Number(time.bMonth, 2);
    out.Letter('/');
    out.Number(time.bDay, 2);
    out.Letter('/');
    out.Number(time.bCentury, 2);
    out.Number(time.bYear, 2);
    out.Letter(' ');
    out.Number(time.bHour, 2);
    out.Letter(':');
    out.Number(time.bMinute, 2);
}

// Prints the lines of an entry in one call: a printf for each would take most of the time of a long listing.
void ShowEvent(uint8_t* buffer, const EVT_HEADER& header) {
    char text[kEventTextSize];
    TranslateEventLogMessage(EntryOf(buffer), text, sizeof text);
    BlankUnprintable(text);

    const bool negative = header.dwEvtNumber > INT32_MAX;  // the number is shown as a signed one
    char lines[kEventTextSize + kRoomAroundText];
    TextWriter out(lines, sizeof lines);
    out.Text("\nEvent: ");
    if (negative) out.Letter('-');
    out.Number(negative ? -header.dwEvtNumber : header.dwEvtNumber);
    out.Text(" Added: ");
    WriteTime(header.UpdateTime, out);
    out.Letter('\n');
    out.Text(SeverityWord(header.bSeverity));
    out.Text(": ");
    out.Text(EventClassName(header.wClass));
    out.Text(" - ");
    out.Text(text);
    out.Text(".\n");
    std::fwrite(lines, 1, out.Length(), stdout);
}

// Prints the log from its lowest number on. Returns the command's result.
int ListEvents(EventRead& read) {
    Pager pager;
    uint32_t current_evt = 0;
    int too_small = 0;  // such replies in a row
    int status = kEntryRead;
    do {
        status = ReadEvent(read.bytes, sizeof read.bytes, current_evt);
        too_small = status == kBufferTooSmall ? too_small + 1 : 0;
        if (status == kEntryRead) {
            const EVT_HEADER header = HeaderOf(read.bytes);
            ShowEvent(read.bytes, header);
            if (header.dwEvtNumber == UINT32_MAX) return 0;
            current_evt = header.dwEvtNumber + 1;
        } else if (status == kBufferTooSmall) {
            std::printf("\nERROR: Event log buffer is too small.");
            if (too_small == kMostTooSmall) return 1;
        } else if (status != kEndOfLog) {
            return Fail("\nERROR: Invalid error code returned.");
        }
    } while (pager.GoOn() && status != kEndOfLog);

    if (current_evt == 0) std::printf("The HLOG Log is empty.");
    return 0;
}

}  // namespace

int ReadEvent(uint8_t* buffer, size_t size, uint32_t number) {
    LOG_INFO info{};
    info.length = static_cast<uint32_t>(size);
    info.choice = kReadEvent;
    info.EvtNumber = static_cast<int32_t>(number);
    EVT_HEADER header{};
    header.wEvtLength = static_cast<uint16_t>(std::min<size_t>(size - kNotPreset, UINT16_MAX));
    std::memset(buffer, 0, size);
    std::memcpy(buffer, &info, sizeof info);
    std::memcpy(buffer + sizeof info, &header, sizeof header);
    int status = vxIoctlRequest(cevt_fd, kEventLogRequest, buffer);
    if (status < 0) status = errno;
    if (status == kEntryRead && HeaderOf(buffer).dwEvtNumber < number) return kEntryFromBefore;
    return status;
}

const char* SeverityWord(uint8_t bSeverity) {
    return TextOfCode(kSeverities, bSeverity, "UNKNOWN");
}

const char* EventClassName(uint16_t wClass) {
    return wClass < std::size(EventClass) ? EventClass[wClass] : kNotDefined;
}

int do_show_hlog(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const std::unique_ptr<EventRead> buffer(new (std::nothrow) EventRead);
    if (buffer == nullptr) return Fail("\nERROR: Could not allocate memory for \"SHOW HLOG\" command.");

    std::printf("\n");
    return ListEvents(*buffer);
}

int do_clear_hlog(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    EVT_IOCTL_ENTRY request{};
    request.info.length = sizeof request;
    request.info.choice = kClearEvents;
    if (vxIoctlRequest(cevt_fd, kEventLogRequest, &request) != 0) {
        return Fail("\nERROR: Failed to clear HLOG Log.");
    }
    std::printf("\nHLOG Log successfully cleared.");
    return 0;
}
