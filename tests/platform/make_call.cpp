#include "tests/platform/make_call.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>

#include "include/data_tables.h"
#include "include/event_log.h"
#include "include/rom_variables.h"
#include "platform/physical_memory.h"
#include "platform/picl.h"
#include "platform/request.h"
#include "tests/support/pattern.h"

namespace {

constexpr char kUnwritten = '\xEE';  // value of the bytes in a buffer before the call
constexpr size_t kGuard = 64;        // bytes after a buffer, so that Answer() detects a write beyond its end

using Words = const Match&;  // the text of a call, and the groups that its pattern captures

std::map<std::string, int> descriptors;
int memory = -1;
char* mapping = nullptr;
picl_nodehdl_t root = 0;

// Converts a captured group to a number of any type.
struct Number {
    explicit Number(const std::string& word) : value(std::stoull(word, nullptr, 0)) {}
    template <typename Wanted>
    operator Wanted() const {
        return static_cast<Wanted>(value);
    }
    unsigned long long value;
};

// Formats the result of a call and its reply: the bytes of the buffer up to the last one that was written.
std::string Answer(int result, std::string buffer = "") {
    buffer.resize(buffer.find_last_not_of(kUnwritten) + 1);
    return std::to_string(result) + (result < 0 ? " errno=" + std::to_string(errno) : "") +
           (buffer.empty() ? "" : " = " + Hexadecimal(buffer));
}

std::string Open(Words words) {
    std::string path = (words[1][0] == '/' ? "" : "/dev/zethealth/") + words[1];
    return Answer(std::min(descriptors[words[1]] = vxOpenRequest(path.data(), kReadWrite), 0));
}

std::string Close(Words words) {
    vxCloseRequest(descriptors[words[1]]);
    return "";
}

std::string RequestCasr(int fd, Number code) {
    std::string state(4, kUnwritten);
    const int result = vxIoctlRequest(fd, code, state.data());
    return Answer(result, state);
}

std::string RequestCdt(Words words) {
    const Number type(words[1]), index(words[2]), index2(words[3]), size(words[4]);
    std::string reply(size_t{size} + kGuard, kUnwritten);
    DT_IOCTL block = {{size, type, index, index2, Number(words[5]), Number(words[6]), {}}, reply.data()};
    const int result = vxIoctlRequest(descriptors["cdt"], kDataTableRequest, &block);
    return Answer(result, reply);
}

std::string RequestCrom(int code, const std::string& name, Number length, const std::string& data) {
    EV_IOCTL_STRUCT block{};
    name.copy(block.EvName, sizeof block.EvName);
    block.DataLength = length;
    std::fill(block.DataBuffer, std::end(block.DataBuffer), static_cast<uint8_t>(kUnwritten));
    for (size_t i = 0; i < data.size() / 2; ++i) block.DataBuffer[i] = Number("0x" + data.substr(2 * i, 2));
    const int result = vxIoctlRequest(descriptors["crom"], code, &block);
    return Answer(result, data.empty() ? std::string(block.DataBuffer, std::end(block.DataBuffer)) : "");
}

std::string RequestCevt(int choice, Number number, Number length) {
    std::string block = MachineBuilder::Plain(LOG_INFO{length, choice, 0, number});
    block.resize(std::max(size_t{length}, sizeof(LOG_INFO)) + kGuard, kUnwritten);
    const int result = vxIoctlRequest(descriptors["cevt"], kEventLogRequest, block.data());
    return Answer(result, block.substr(sizeof(LOG_INFO)));
}

// Maps a range. The reply consists of the first and the last byte of the mapping.
std::string MapMemory(Words words) {
    const Number address(words[1]), length(words[2]);
    mapping = static_cast<char*>(xsvc_map(memory, address, length));
    return mapping == nullptr ? Answer(-1) : Answer(0, {mapping[0], mapping[length.value - 1]});
}

std::string UnmapMemory(Words words) {
    xsvc_unmap(mapping, Number(words[1]));
    return "";
}

std::string CloseMemory(Words) {
    xsvc_close(memory);
    return "";
}

int callback_result = PICL_WALK_CONTINUE;

// Walks the tree. The reply consists of one byte of the property "id" of each node, or ff if it has none.
std::string WalkPicl(Words words) {
    std::string ids;
    const auto add_id = [](picl_nodehdl_t node, void* arg) -> int {
        uint32_t id = 0xFF;
        picl_get_propval_by_name(node, "id", &id, sizeof id);
        *static_cast<std::string*>(arg) += static_cast<char>(id);
        return callback_result;
    };
    const int result = picl_walk_tree_by_class(root, words[1].c_str(), &ids, add_id);
    return Answer(result, ids);
}

std::string GetPiclProperty(Words words) {
    std::string value(8, kUnwritten);
    const int result = picl_get_propval_by_name(root, words[1].c_str(), value.data(), Number(words[2]));
    return Answer(result, value);
}

// clang-format off
const struct {
    const char* pattern;
    std::string (*make)(Words words);
} kCalls[] = {
    {"open (.+)", Open},
    {"close (.+)", Close},
    {"cdt (\\d+).(\\d+).(\\d+) size=(\\d+) cru=(\\d+).(\\d+)", RequestCdt},
    {"casr (\\d+)", [](Words w) { return RequestCasr(descriptors["casr"], Number(w[1])); }},
    {"fd=(\\S+) code=(\\d+)", [](Words w) { return RequestCasr(Number(w[1]), Number(w[2])); }},
    {"crom read (.*) length=(\\d+)", [](Words w) { return RequestCrom(kReadVariable, w[1], Number(w[2]), ""); }},
    {"crom write (.*) length=(\\d+) data=(.*)", [](Words w) { return RequestCrom(kWriteVariable, w[1], Number(w[2]), w[3]); }},
    {"cevt read (\\S+) length=(\\d+)", [](Words w) { return RequestCevt(kReadEvent, Number(w[1]), Number(w[2])); }},
    {"cevt clear length=(\\d+)", [](Words w) { return RequestCevt(kClearEvents, Number("0"), Number(w[1])); }},
    {"cevt choice=(\\d+) length=(\\d+)", [](Words w) { return RequestCevt(Number(w[1]), Number("0"), Number(w[2])); }},
    {"xsvc open", [](Words) { return Answer(std::min(memory = xsvc_open(), 0)); }},
    {"xsvc map (\\S+) (\\d+)", MapMemory},
    {"xsvc unmap (\\d+)", UnmapMemory},
    {"xsvc close", CloseMemory},
    {"picl initialize", [](Words) { return Answer(picl_initialize()); }},
    {"picl root", [](Words) { return Answer(picl_get_root(&root)); }},
    {"picl walk (.+)", WalkPicl},
    {"picl get (\\S+) (\\d+)", GetPiclProperty},
    {"move root (\\S+)", [](Words w) { root += Number(w[1]).value; return std::string(); }},
    {"callbacks return (\\d+)", [](Words w) { callback_result = Number(w[1]); return std::string(); }},
};
// clang-format on

}  // namespace

std::string Make(const std::string& call) {
    for (const auto& [pattern, make] : kCalls) {
        const Match words = MatchWhole(call, pattern);
        if (!words.empty()) return make(words);
    }
    return "not a call of kCalls: " + call;
}

void InChild(const TestMachine& machine, const std::function<void()>& body) {
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        const std::string errors = machine.Directory() + "/stderr";
        dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666), STDERR_FILENO);
        setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
        EXPECT_NO_THROW(body());
        std::fflush(stdout);
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << machine.Read("stderr");
}

void ExpectCalls(TestMachine& machine, const std::string& calls) {
    const std::vector<Match> steps =
        MatchAll(calls, " *([^#;\n]+?)( -> (-?\\d+(?: errno=\\d+)?)( = \\w+)?)? *(#[^;\n]*)?(?:[;\n]|$)");
    std::string trace;
    machine.StartTrace();
    InChild(machine, [&] {
        for (const Match& step : steps) {
            EXPECT_EQ(Make(step[1]), step[3] + step[4]) << step[1] << ' ' << step[5];
        }
    });
    for (const Match& step : steps) trace += step[1] + (step[2].empty() ? "" : " -> ") + step[3] + "\n";
    EXPECT_EQ(machine.TakeTrace(), trace);
}

std::string LogEntry(uint32_t number, size_t length) {
    EVT_HEADER header{};
    header.wEvtLength = static_cast<uint16_t>(length);
    header.dwEvtNumber = number;
    std::string entry = MachineBuilder::Plain(header);
    entry.resize(std::max(length, sizeof header), static_cast<char>(number & 0x7F));
    return entry;
}
