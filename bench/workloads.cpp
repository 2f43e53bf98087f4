// workloads NAME N: runs the workload NAME, a part of brantcli's work, N times, so that bench/run can measure
// it.
// workloads full-table DIR: creates the default machine with SMBIOS tables of the maximum size.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "cli/brantcli/command_table.h"
#include "cli/eventstr/eventstr.h"
#include "cli/misc-commands/event_log.h"
#include "cli/parse/completion.h"
#include "mkmachine/events.h"
#include "mkmachine/firmware_records.h"
#include "mkmachine/models.h"

namespace {

constexpr unsigned kTextSize = 256;  // buffer size for an event's text in bytes, as in SHOW HLOG

// Returns an entry for each sample event.
std::vector<std::string> Entries() {
    std::vector<std::string> entries;
    for (const SampleEvent& event : EveryEvent()) {
        const auto number = static_cast<uint32_t>(entries.size() + 1);
        entries.push_back(
            EventEntry(EventHeader(number, event.severity, event.event_class, event.code), event.payload));
    }
    return entries;
}

void Translate(std::string& entry, char (&text)[kTextSize]) {
    TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(entry.data()), text, sizeof text);
}

// Translates `count` entries into text.
void TranslateTimes(size_t count) {
    std::vector<std::string> entries = Entries();
    char text[kTextSize];
    for (size_t i = 0; i < count; ++i) Translate(entries[i % entries.size()], text);
}

// The reference for SHOW HLOG: prints `count` entries with printf. The texts are translated before the loop.
void PrintLines(size_t count) {
    struct Line {
        EVT_HEADER header;
        std::string text;
    };
    std::vector<Line> lines;
    for (std::string& entry : Entries()) {
        char text[kTextSize];
        Translate(entry, text);
        EVT_HEADER header;
        std::memcpy(&header, entry.data(), sizeof header);
        lines.push_back({header, text});
    }
    for (size_t i = 0; i < count; ++i) {
        const auto& [header, text] = lines[i % lines.size()];
        const EVT_TIME_STAMP& time = header.UpdateTime;
        std::printf("\nEvent: %zu Added: %02d/%02d/%02d%02d %02d:%02d\n%s: %s - %s.\n", i + 1, time.bMonth,
                    time.bDay, time.bCentury, time.bYear, time.bHour, time.bMinute,
                    SeverityWord(header.bSeverity), EventClassName(header.wClass), text.c_str());
    }
}

// Completes a line `count` times, as the TAB key does.
void CompleteTimes(size_t count) {
    CreateCommands();
    for (size_t i = 0; i < count; ++i) {
        char line[kLineSize] = "set serial emb";
        TabComplete(line);
    }
}

// Fills the tables with memory devices, up to the largest length that an entry point can contain.
void MakeFullTable(const char* directory) {
    constexpr size_t kLargestTables = 65535;
    constexpr uint32_t kAbove1MiB = 0x100000;
    const Model& model = Models().front();
    MakeMachine(model, directory);
    SmbiosTable tables = TablesOf(model);
    const SmbiosRecord device = MemoryDeviceRecord({0x7000, 0x1000, "DIMM 9", 1024, 667});
    while (tables.Bytes().size() + device.Bytes().size() <= kLargestTables) tables.Add(device);
    MachineBuilder machine(directory);
    machine.PhysicalMemory(kAbove1MiB, tables.Bytes() + std::string(4096, '\0'));
    machine.PhysicalMemory(kEntryPointAddress, MachineBuilder::Plain(tables.EntryPoint(kAbove1MiB)));
}

}  // namespace

int main(int argc, char** argv) {
    const std::string name = argc == 3 ? argv[1] : "";
    const size_t count = argc == 3 ? std::strtoul(argv[2], nullptr, 10) : 0;
    if (name == "translate") {
        TranslateTimes(count);
    } else if (name == "lines") {
        PrintLines(count);
    } else if (name == "tab") {
        CompleteTimes(count);
    } else if (name == "full-table") {
        MakeFullTable(argv[2]);
    } else {
        std::fprintf(stderr, "usage: workloads translate|lines|tab N\n       workloads full-table DIR\n");
        return 2;
    }
    return 0;
}
