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
#include "cli/terminal/terminal.h"
#include "platform/request.h"
#include "src/utils/text.h"

namespace {

// A read request contains, in the entry's wEvtLength, the number of bytes that the driver may fill: the size
// of the buffer minus this number. With the shell's buffer, the driver may fill a header and 256 bytes of
// payload.
constexpr size_t kReservedSize = kEventReadSize - (sizeof(EVT_HEADER) + 256);
constexpr int kSizeAroundText = 128;  // maximum size of an event's lines without its text
constexpr int kRequestsAScreen = 6;
constexpr int kMostTooSmall = 2 * kRequestsAScreen;  // consecutive kBufferTooSmall that end a listing

// Pauses a listing after each screen until a key is pressed.
class Pager {
  public:
    // Counts a request. At the end of a screen, waits for a key. Returns false if the user quits.
    bool Continue();

  private:
    static constexpr int kOff = -1;
    int displayed_ = 0;  // requests since the last prompt; kOff: pauses are switched off
};

// Waits for a key, also if standard input is non-blocking. Returns EOF at the end of the input.
int ReadKey() {
    for (;;) {
        errno = 0;
        const int key = std::fgetc(stdin);
        if (key != EOF || errno != EAGAIN) return key;
        WaitForInput();
    }
}

bool Pager::Continue() {
    if (displayed_ == kOff || ++displayed_ < kRequestsAScreen) return true;

    displayed_ = 0;
    std::printf(
        "\nPress q to quit, c to continue without pagination\n"
        "or any other key to see the next screen.: ");
    std::fflush(stdout);
    const int key = ReadKey();
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

// The names of the event classes, indexed by EVT_HEADER::wClass.
constexpr char EventClass[][28] = {
    "EVT_CLASS_EMPTY",  // class 0
    "EVT_CLASS_TEST",
    "Machine Environment",
    "Main Memory",
    "Cache Memory",  // class 4
    "CPU",
    "Host Bus",
    "EISA Bus",
    "PCI Bus",  // class 8
    "Expansion Slot",
    "POST Messages",
    "Power Subsystem",
    "UPS",  // class 12
    "ASR",
    "OS Class",
    "DIAGS",
    "Not defined",  // class 16
    "Network Adapter",
    "SCSI Subsystem",
    "Drive Array Subsystem",
    "Unrecoverable System Error",  // class 20
    "Not defined",
    "Not defined",
    "Not defined",
    "Not defined",  // class 24
    "Not defined",
    "Not defined",
    "Not defined",
    "Not defined",  // class 28
    "Not defined",
    "Not defined",
    "Not defined",
    "System Revision",  // class 32
    "Maintenance Note",
    "Infrastructure Environment",
};

// Writes a time like "03/15/2006 14:07".
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

// Prints an event. Doesn't use printf, which would take 2,700 instructions more, 60 % of the cost of listing
// an event.
void ShowEvent(uint8_t* buffer, const EVT_HEADER& header) {
    char text[kEventTextSize];
    TranslateEventLogMessage(EntryOf(buffer), text, sizeof text);
    ReplaceUnprintable(text);

    const bool negative = header.dwEvtNumber > INT32_MAX;  // event numbers are printed as signed
    char lines[kEventTextSize + kSizeAroundText];
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

// Prints the log, starting with the lowest event number. Returns the command's result.
int ListEvents(EventRead& read) {
    Pager pager;
    uint32_t current_evt = 0;
    int too_small = 0;  // the number of kBufferTooSmall in a row
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
    } while (pager.Continue() && status != kEndOfLog);

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
    header.wEvtLength = static_cast<uint16_t>(std::min<size_t>(size - kReservedSize, UINT16_MAX));
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

void ReplaceUnprintable(char* text) {
    for (; *text != '\0'; ++text) {
        if (static_cast<signed char>(*text) < ' ') *text = ' ';
    }
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
