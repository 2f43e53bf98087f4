// The editor, fed with keys that are all there at once: what it writes, byte for byte, what that looks like
// on a screen, and the line that Enter hands over.
#include "cli/parse/editor.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "cli/brantcli/command_table.h"
#include "cli/command/state.h"
#include "cli/parse/command_tree.h"
#include "cli/terminal/history.h"
#include "tests/support/program_state.h"
#include "tests/support/screen.h"

namespace {

// clang-format off
const std::string kUp = "\33[A", kDown = "\33[B", kRight = "\33[C", kLeft = "\33[D", kF1 = "\33[11~",
                  kHome = "\33[1~", kInsert = "\33[2~", kDelete = "\33[3~", kEnd = "\33[4~", kClear = "\3";
const std::string kPrompt = "brantcli> ", k25Words = "? 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 y ";

std::string Erased(size_t columns) { return columns == 0 ? "" : "\b \b" + Erased(columns - 1); }
std::string Trimmed(const std::string& text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

struct KeyCase {
    const char* catches;
    std::string keys;
    std::string written;  // after the prompt
    std::string line;
    int column;  // of the cursor, from the line's start
};
const KeyCase kKeys[] = {
    // editing in mid-line
    {"the rest of the line overwritten",      "ac" + kLeft + "b",         "ac\bbc\b",             "abc", 2},
    {"the last character left on the screen", "abc" + kLeft + "\x7f",     "abc\b\bc \b\b",        "ac", 1},
    {"Backspace at the start",                "abc" + kHome + "\b",       "abc\b\b\b",            "abc", 0},
    {"Delete taking what is left of it",      "abc" + kHome + kDelete,    "abc\b\b\bbc \b\b\b",   "bc", 0},
    {"Insert moving the cursor",              "ab" + kLeft + kInsert,     "ab\b b\b\b",           "a b", 1},
    {"moves past the ends", kLeft + kHome + "a" + kRight + kEnd + kDelete, "\a\aa\a\a\a", "a", 1},
    {"End from the wrong place",     "abc" + kHome + kRight + kEnd,       "abc\b\b\b" "abc",      "abc", 3},
    {"cleared from the cursor only", "ab" + kLeft + kClear + "c",         "ab\bb\b \b\b \bc",     "c", 1},
    // two of a kind
    {"two ESCs that aren't a pair", "a\33\33b\33\33\200\33\33\377\33\33", "a\ab\a\a\a\a\a",           "ab", 2},
    {"a double ESC, and Ctrl-U",          "a\33\33\33\33b\x15",           "a\a\b \bb\b \b",       "", 0},
    {"0xFF after ESC left in the input",  "a\33\377",                     "a\a",                  "a", 1},
    {"a pair across what is no key", "s\t" + std::string(1, '\0') + "\t\200\t\377\t", "s\a\b \bs\a\b \bs\a\a\b \bs\a\a\b \bs", "s", 1},
    {"a TAB and an ESC taken for a pair",     "z\t\33\377",                "z\a\a",                "z", 1},
    // bytes that are no keys, sequences that aren't known: what was read of them is gone, the rest is typed
    {"a high byte taken for a key code",  "a\353\370",                    "a\a\a",                "a", 1},
    {"a control character inserted",      "\1\4\32",                      "\a\a\a",               "", 0},
    {"a sequence read too far",           "\33[22~\33[16~\33[7~\33[1x~",  "\a\a~\a\a~\a\a~\a\a~", "~~~~", 4},
    {"a sequence not read far enough",    "\33OP\33[Z\33x\33[[A",         "\a\aP\a\a\a\a\a\aA",   "PA", 2},
    {"two bells for a known key", "\33[5~\33[6~\33[12~\33[14~\33[15~\33[17~\33[18~\33[19~\33[20~\33[21~\33[23~\33[24~",
                                                                          std::string(12, '\a'),  "", 0},
    // TAB: the line read anew against the tree
    {"a synonym making a word ambiguous", "show fa\t",           "show fa" + Erased(7) + "SHOW FAN ",        "SHOW FAN ", 9},
    {"a synonym written as another word", "show fans Xy\t",      "show fans Xy" + Erased(12) + "SHOW FANS Xy ", "SHOW FANS Xy ", 13},
    {"a beginning taken for a word",      "sho x\t",             "sho x\a",                                  "sho x", 5},
    {"blanks kept, quotes heeded",        " set  name \"My  b\t", " set  name \"My  b" + Erased(17) + "SET NAME \"My b ", "SET NAME \"My b ", 15},
    {"a bell for an empty line",          " \t",                 " ",                                        " ", 1},
    {"the 25th word lost",                k25Words + "\t",       k25Words + Erased(50) + k25Words,              k25Words, 50},
    {"the 26th word lost",                k25Words + "z\t",      k25Words + "z\a",                              k25Words + "z", 51},
    // TAB and F1 on the screen
    {"the cursor left inside the word",   "sh" + kLeft + "\t",   "sh\b\b \bSHOW ",                           "SHOW ", 5},
    {"the TAB after a longer word counted as its second", "sh\t\t", "sh" + Erased(2) + "SHOW " + Erased(5) + "SHOW ", "SHOW ", 5},
    {"the TAB after a longer beginning counted as its second", "show s\t\t", "show s\a" + Erased(6) + "SHOW SER\a" + Erased(8) + "SHOW SER", "SHOW SER", 8},
    {"one word listed",                   "SHOW \t\t",          "SHOW " + Erased(5) + "SHOW ",               "SHOW ", 5},
    {"a synonym listed", "show f\t\t", "show f\a" + Erased(6) + "SHOW f\a\n[ F1 | FAN ]\nbrantcli> SHOW f", "SHOW f", 6},
    {"the third TAB counted as one more", "s\t\t\t",             "s\a\b \bs\a\n[ SET | SHOW ]\nbrantcli> s\a\b \bs", "s", 1},
    {"F1 without a line",                 kF1,                   Erased(10) +
        "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command.\nbrantcli> ", "", 0},
    {"F1 losing the cursor's place",      "show fa" + kLeft + kF1, "show fa\ba" + Erased(17) +
        "\nUSAGE: SHOW FANS: Shows info on installed fans.\nbrantcli> SHOW FAN \b\b\b",                      "SHOW FAN ", 6},
    {"F1 keeping it beside a list",       "show s" + kHome + kF1, "show s\b\b\b\b\b\bshow s" + Erased(16) +
        "\a\a\n[ SERIAL | SERVER ]\nbrantcli> SHOW SER",                                                     "SHOW SER", 8},
};
// clang-format on

InputLineType line;

bool at_prompt = false;

void StartShell() {
    // The end of the input ends the process with status 0, which would look like success.
    static const int registered = std::atexit([] {
        if (at_prompt) std::abort();
    });
    ASSERT_EQ(registered, 0);
    ResetState();
    ASSERT_TRUE(AllocateHistory());
    if (Cmds == nullptr) CreateCommands();
}

// Reads the line from these keys. Result: what was written, the prompt included.
std::string Type(const std::string& keys) {
    int keyboard[2];
    EXPECT_EQ(pipe(keyboard), 0);
    EXPECT_EQ(write(keyboard[1], keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    EXPECT_EQ(dup2(keyboard[0], STDIN_FILENO), 0);
    for (const int end : keyboard) close(end);
    ::testing::internal::CaptureStdout();
    at_prompt = true;
    GetCmd(&line);
    at_prompt = false;
    return ::testing::internal::GetCapturedStdout();
}

TEST(Editor, BeginsWithAnEmptyHistory) {
    constexpr size_t kBytes = kHistorySlots * kHistorySlotSize;
    StartShell();
    std::memset(History[0], 'x', kBytes);
    history_index = 7;
    FreeHistory();
    ASSERT_TRUE(AllocateHistory() && history_index == 0);
    EXPECT_EQ(std::count(History[0], History[0] + kBytes, '\0'), kBytes);
    StoreInHistory("aa");
    EXPECT_TRUE(RepeatsNewest("aa") && !RepeatsNewest("a") && !RepeatsNewest("aaa"));
}

TEST(Editor, WritesWhatAKeyShows) {
    StartShell();
    for (const KeyCase& c : kKeys) {
        EXPECT_EQ(Type(c.keys + "\r"), kPrompt + c.written) << c.catches;
        EXPECT_EQ(line.CmdLine, c.line) << c.catches;
    }
}

TEST(Editor, LooksRightOnATerminal) {
    const TestMachine machine("tr500k2");
    TerminalSession session(machine);
    session.ReceiveUntil("\n" + kPrompt);
    for (const KeyCase& c : kKeys) {
        session.Type(c.keys);
        ASSERT_EQ(session.ReceiveUntil(c.written), c.written) << c.catches;
        EXPECT_EQ(session.screen.CursorLine(), Trimmed(kPrompt + c.line)) << c.catches;
        EXPECT_EQ(session.screen.Cursor().col, static_cast<int>(kPrompt.size()) + c.column) << c.catches;
        session.Type(kClear);
        session.ReceiveUntil(c.line.substr(static_cast<size_t>(c.column)) + Erased(c.line.size()));
    }
}

TEST(Editor, KeepsToTheRoomOfALine) {
    StartShell();
    const std::string most = "help " + std::string(246, 'x'), completed = "HELP" + most.substr(4) + " ";
    EXPECT_EQ(Type(most + "\t\r"), kPrompt + most + Erased(251) + completed);
    EXPECT_EQ(line.CmdLine, completed);
    EXPECT_EQ(Type(most + "x\t\r"), kPrompt + most + "x\a");
    EXPECT_EQ(line.CmdLine, most + "x");
    const std::string middle = most + "x" + kHome + kRight;
    Type(middle + "123" + kDelete + "\r");  // the third is one too many
    EXPECT_EQ(line.CmdLine, "h12" + most.substr(2) + "x");

    std::string full(254, 'a');
    EXPECT_EQ(InsertChar(0, 'b', full.data()), -1);
    EXPECT_EQ(DeleteChar(-1, full.data()), -1);
    EXPECT_EQ(DeleteChar(254, full.data()), -1);
    EXPECT_EQ(DeleteChar(253, full.data()), 253);
    EXPECT_EQ(full.c_str(), std::string(253, 'a'));
}

// What stands behind a line that is too long must not run: all of it up to Enter, or at a terminal what has
// been typed.
TEST(Editor, RefusesALineThatIsTooLongAndItsRest) {
    const TestMachine machine("tr500k2");
    const std::string too_long = "SET ASSET " + std::string(243, 'x'), log = machine.Read("cevt/hlog"),
                      refusal =
                          kPrompt + too_long + "\a\nInvalid Command - command line too long.\n" + kPrompt;
    const std::string script = "{ printf 'HELP EXIT\\n" + too_long + "CLEAR'; sleep .1; " +
                               "printf ' HLOG\\t\\377\\rHELP QUIT\\n'; } | " + InShell("brantcli");
    const std::string shown = RunProgram("/bin/sh", {"-c", script}, machine.Directory()).output;
    EXPECT_EQ(shown.substr(shown.find(refusal)),
              refusal + "HELP QUIT\nUSAGE: QUIT: Exit brantcli.\n" + kPrompt + "\n");
    EXPECT_EQ(machine.Type(too_long).status, 0);

    TerminalSession session(machine);
    session.ReceiveUntil("\n" + kPrompt);
    session.Type(too_long + "CLEAR HLOG");
    EXPECT_EQ(kPrompt + session.ReceiveUntil("\n" + kPrompt), refusal);
    session.Type(too_long + "CLEAR HLOG\rexit\r");
    EXPECT_EQ(session.End(), 0);
    EXPECT_EQ(machine.Read("cevt/hlog"), log);
}

// clang-format off
// The editor's simpler twin: a string and an index. Capital letters are keys, everything else is typed.
struct Model {
    std::vector<std::string> entered;  // of which the last 49 can be recalled
    std::string line;
    size_t at = 0, shown = 0;
    int bells = 0;  // of keys that can do nothing

    void Show(size_t index) {
        shown = index;
        line = index < entered.size() ? entered[index] : "";
        at = line.size();
    }
    std::string Press(char key) {  // what the key sends
        if (std::string(at == 0 ? "LH" : "").find(key) != std::string::npos) ++bells;
        if (std::string(at == line.size() ? "RED" : "").find(key) != std::string::npos) ++bells;
        const bool older = shown > 0 && shown + 49 > entered.size();
        if (key == 'U' && !older) ++bells;
        switch (key) {
            case 'L': at -= at > 0;                                                   return kLeft;
            case 'R': at += at < line.size();                                         return kRight;
            case 'H': at = 0;                                                         return kHome;
            case 'E': at = line.size();                                               return kEnd;
            case 'D': line.erase(at, 1);                                              return kDelete;
            case 'I': if (line.size() < 254) line.insert(at, 1, ' ');                 return kInsert;
            case 'B': if (at > 0) line.erase(--at, 1);                                return "\b";
            case 'C': Show(entered.size());                                           return kClear;
            case 'U': if (older) Show(shown - 1);                                     return kUp;
            case 'P': Press('U');                                                     return "\33[13~";
            case 'N': if (shown < entered.size()) Show(shown + 1);                    return kDown;
            default:  if (line.size() < 254) line.insert(at++, 1, key);               return {key};
        }
    }
    bool TooLong() const { return at > 252; }
    bool HasWords() const { return !TooLong() && line.find_first_not_of(' ') != line.npos; }
    void Enter() {
        if (HasWords() && (entered.empty() || entered.back() != line)) entered.push_back(line);
        Show(entered.size());
    }
};
// clang-format on

RC_GTEST_PROP(Editor, KeepsTheLineThatAStringAndAnIndexKeep, ()) {
    StartShell();
    Model model;
    for (int i = *rc::gen::inRange(0, 110); i > 0; --i) {
        model.line = std::to_string(i);
        StoreInHistory(model.line.c_str());
        model.Enter();
    }
    const auto stroke =
        rc::gen::pair(rc::gen::inRange(1, 60), rc::gen::elementOf(std::string("ab LRHEDIBCUPN")));
    for (int lines = 0; lines < 2; ++lines) {
        std::string keys;
        model.bells = 0;
        for (const auto& [times, key] : *rc::gen::container<std::vector<std::pair<int, char>>>(stroke)) {
            for (int i = 0; i < times && !model.TooLong(); ++i) keys += model.Press(key);
        }
        const std::string written = Type(keys + "\n");
        RC_ASSERT(std::count(written.begin(), written.end(), '\a') == model.bells + model.TooLong());
        RC_ASSERT(line.CmdLine == model.line);
        RC_ASSERT((line.Words[0] != nullptr) == model.HasWords());
        Screen screen(300);
        screen.Show(written.substr(0, written.find('\n')));
        RC_ASSERT(screen.CursorLine() == Trimmed(kPrompt + model.line));
        RC_ASSERT(screen.Cursor().col == static_cast<int>(kPrompt.size() + model.at));
        model.Enter();
    }
}

}  // namespace
