// make_seeds DIR: writes the seed corpus, one folder per fuzz target, and `words`, a dictionary of the
// commands. It derives both from the project's tables, sample events and models.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "cli/eventstr/eventstr.h"
#include "cli/parse/command_tree.h"
#include "mkmachine/events.h"
#include "mkmachine/firmware_records.h"
#include "mkmachine/models.h"
#include "tests/support/every_command.h"

namespace {

class Seeds {
  public:
    Seeds(const std::string& directory, const char* target) : folder_(directory + "/" + target) {
        std::filesystem::create_directories(folder_);
    }
    void Add(const std::string& bytes) {
        const std::string path = folder_ + "/" + std::to_string(++count_);
        std::ofstream(path, std::ios::binary) << bytes;
    }

  private:
    const std::string folder_;
    int count_ = 0;
};

// Adds three inputs for each model (smbios.cpp describes the format): with a valid entry point at the address
// that mkmachine uses; with an entry point in the input, at the first possible address; and with one at the
// last possible address, whose length extends beyond the BIOS area.
void AddTables(Seeds& seeds) {
    for (const Model& model : Models()) {
        const SmbiosTable table = TablesOf(model);
        SMBIOSEntryPoint entry = table.EntryPoint(0x10000);
        seeds.Add(std::string("\0\x00\x05", 3) + table.Bytes());
        seeds.Add(std::string("\1\x00\x00", 3) + MachineBuilder::Plain(entry) + table.Bytes());
        entry.byEPSLength = 0xFF;
        seeds.Add("\1\xFC\x0F" + MachineBuilder::Plain(entry) + table.Bytes());
    }
}

// Adds three inputs for each sample event (event.cpp describes the format): a log entry; an entry of the
// management processor; and such an entry whose last NUL is replaced by letters, up to the end of the bytes
// that may be read.
void AddEvents(Seeds& seeds) {
    for (const SampleEvent& event : EveryEvent()) {
        const EVT_HEADER header = EventHeader(1, event.severity, event.event_class, event.code);
        seeds.Add(std::string("\xFF\0", 2) + EventEntry(header, event.payload));
        const EVT_IPMI_HEADER short_header = {static_cast<uint8_t>(event.event_class),
                                              static_cast<uint8_t>(event.code), 0, 0, event.severity};
        const std::string beginning = "\xFF\1" + MachineBuilder::Plain(short_header);
        seeds.Add(beginning + event.payload);
        std::string filled = event.payload.substr(0, std::max<size_t>(event.payload.size(), 1) - 1);
        filled.resize(kIpmiPayloadCapacity, 'x');
        seeds.Add(beginning + filled);
    }
}

// Adds inputs for two targets. For `line`: every command on every machine, every event log, and every pair of
// modifying commands, each on one of the machines. For `keys`: every command, followed by TABs.
void AddCommands(Seeds& lines, Seeds& keys) {
    std::vector<std::string> changes;
    for (const std::string& command : Commands()) {
        for (const char machine : {'0', '1', '2', '3'}) lines.Add(machine + command);
        keys.Add(command + "\t\t\r");
        if (command.compare(0, 4, "SHOW") != 0) changes.push_back(command);
    }
    for (int log = 0; log < 256; log += 4) lines.Add(static_cast<char>(log) + std::string("SHOW HLOG"));
    int pair = 0;
    for (const std::string& first : changes) {
        for (const std::string& second : changes) lines.Add("0123"[pair++ % 4] + first + ";" + second);
    }
}

// Adds the words of `text` that a command can contain: words in upper case, and numbers. Omits words of one
// character, which the fuzzer finds without a dictionary.
void AddWords(const std::string& text, std::set<std::string>& words) {
    const auto in_word = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); };
    for (auto begin = text.begin(); begin != text.end();) {
        const auto end = std::find_if_not(begin, text.end(), in_word);
        if (end - begin > 1) words.emplace(begin, end);
        begin = std::find_if(end, text.end(), in_word);
    }
}

void AddWordsOfHelp(const CmdType* parent, std::set<std::string>& words) {
    for (const CmdType* node = parent->Sub; node != nullptr; node = node->Next) {
        AddWords(node->Help, words);
        AddWordsOfHelp(node, words);
    }
}

void WriteDictionary(const std::string& path) {
    std::set<std::string> words = {";"};
    for (const std::string& command : Commands()) AddWords(command, words);
    AddWordsOfHelp(Cmds, words);
    std::ofstream file(path);
    for (const std::string& word : words) file << '"' << word << "\"\n";
}

void AddEditing(Seeds& keys) {
    for (const char* bytes :
         {"show fa\33[D\33[11~\r", "a\rb\r\33[A\33[A\33[B\r", "ab\33[1~\33[2~\33[3~\33[4~\x7f\r",
          "\33\33\33\33\3\x15\r", "set name \"My  b\"\t\r\33[13~\r"}) {
        keys.Add(bytes);
    }
    keys.Add(std::string(253, 'x') + "\rshow\r");
    keys.Add(std::string(252, 'x') + "\33[1~yyyy\r");
}

// Adds the files of a machine, which it creates in the directory `machine` and then removes.
void AddMachine(Seeds& seeds, const std::string& machine) {
    MakeMachine(Models().front(), machine);
    std::ifstream file(machine + "/picl", std::ios::binary);
    const std::string picl(std::istreambuf_iterator<char>(file), {});
    const std::string faults =
        "open cdt -5\ncdt 351.0.0 3\ncasr 1 -5\ncrom read ZTMISC 1\ncrom write ZTMISC -28\ncevt read * 3\n"
        "cevt read -1 3\ncevt clear -5\nxsvc open -2\nxsvc map 0xF0000 -22\npicl root 1\nrequest 3 -5\n";
    seeds.Add(picl + '\0' + faults + '\0' + EventLog(12));
    std::filesystem::remove_all(machine);
}

void AddRequests(Seeds& seeds) {
    for (const char* request :
         {"GET /metrics HTTP/1.0\r\n\r\n", "HEAD http://[::1]:80/metrics?a=b HTTP/1.1\r\nHost: h\r\n\r\n",
          "\r\nPOST / HTTP/1.1\r\nHost: h\r\nContent-Length: 2\r\nA: b\r\n c\r\n\r\nxx",
          "GET /metrics HTTP/1.1\r\nHOST:h\r\nTransfer-Encoding: \tchunked \r\n\r\n0\r\n\r\n"}) {
        for (const char part : {'\0', '\x80', '\xFF'}) seeds.Add(part + std::string(request));
    }
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::fputs("usage: make_seeds DIR\n", stderr);
        return 2;
    }
    const std::string directory = argv[1];
    Seeds smbios(directory, "smbios"), event(directory, "event"), line(directory, "line"),
        keys(directory, "keys"), machine(directory, "machine"), http(directory, "http");
    AddTables(smbios);
    AddEvents(event);
    AddCommands(line, keys);
    WriteDictionary(directory + "/words");
    AddEditing(keys);
    AddMachine(machine, directory + "/made");
    AddRequests(http);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "make_seeds: %s\n", error.what());
    return 1;
}
