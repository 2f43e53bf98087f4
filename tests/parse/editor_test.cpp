// Tests of the line editor. All keys of a test are in the input before the editor starts. The tests check the
// bytes that the editor writes, their effect on a screen, and the line that Enter returns.
#include "cli/parse/editor.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "cli/brantcli/command_table.h"
#include "cli/command/state.h"
#include "cli/terminal/history.h"
#include "tests/support/program_state.h"
#include "tests/support/screen.h"

namespace {

const std::string kPrompt = "brantcli> ";

std::string Erased(size_t columns) {
    return columns == 0 ? "" : "\b \b" + Erased(columns - 1);
}

std::string Trimmed(const std::string& text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// Returns the bytes for a name in angle brackets: the bytes that a key sends, such as <Left>, or that the
// editor writes, such as <Bell>.
std::string BytesOfName(const std::string& name) {
    // clang-format off
    static const std::pair<const char*, const char*> names[] = {
        {"Up", "\33[A"}, {"Down", "\33[B"}, {"Right", "\33[C"}, {"Left", "\33[D"}, {"Home", "\33[1~"},
        {"Insert", "\33[2~"}, {"Delete", "\33[3~"}, {"End", "\33[4~"}, {"F1", "\33[11~"}, {"F3", "\33[13~"},
        {"Esc", "\33"}, {"Tab", "\t"}, {"BS", "\b"}, {"Rubout", "\177"}, {"^C", "\3"}, {"^U", "\25"},
        {"RootHelp", "\n\nInvalid or Incomplete Command - No help available. Try using Tab Completion or the HELP command."},
        {"Enter", "\r"}, {"NL", "\n"}, {"Bell", "\a"}, {"24Words", "? 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4"},
    };
    // clang-format on
    for (const auto& [known, bytes] : names) {
        if (name == known) return bytes;
    }
    if (name.rfind("Erase ", 0) == 0) return Erased(std::stoul(name.substr(6)));
    return {static_cast<char>(std::stoi(name, nullptr, 16))};  // two hexadecimal digits: this byte
}

// Replaces each name in angle brackets with its bytes.
std::string Bytes(const std::string& notation) {
    std::string bytes;
    for (size_t i = 0; i < notation.size(); ++i) {
        if (notation[i] == '<') {
            const size_t end = notation.find('>', i);
            bytes += BytesOfName(notation.substr(i + 1, end - i - 1));
            i = end;
        } else {
            bytes += notation[i];
        }
    }
    return bytes;
}

struct KeyCase {
    const char* catches;
    const char* keys;     // this member and the next two are arguments for Bytes()
    const char* written;  // the output after the prompt
    const char* line;
    int column;  // final column of the cursor in the line
};
// clang-format off
constexpr KeyCase kKeys[] = {
    // cases: editing before the end of the line
    {"the rest of the line is overwritten",        "ac<Left>b",                "ac<BS>bc<BS>",                   "abc", 2},
    {"the last character stays on the screen",     "abc<Left><Rubout>",        "abc<BS><BS>c <BS><BS>",          "ac",  1},
    {"Backspace at the start has an effect",       "abc<Home><BS>",            "abc<BS><BS><BS>",                "abc", 0},
    {"Delete removes the character to the left",   "abc<Home><Delete>",        "abc<BS><BS><BS>bc <BS><BS><BS>", "bc",  0},
    {"Insert moves the cursor",                    "ab<Left><Insert>",         "ab<BS> b<BS><BS>",               "a b", 1},
    {"the cursor moves past the ends",             "<Left><Home>a<Right><End><Delete>", "<Bell><Bell>a<Bell><Bell><Bell>", "a", 1},
    {"End prints from the wrong column",           "abc<Home><Right><End>",    "abc<BS><BS><BS>abc",             "abc", 3},
    {"the line is cleared from the cursor only",   "ab<Left><^C>c",            "ab<BS>b<Erase 2>c",              "c",   1},
    // cases: double keys
    {"two ESCs that aren't a pair clear the line", "a<Esc><Esc>b<Esc><Esc><80><Esc><Esc><FF><Esc><Esc><Right><Esc><Esc>",
        "a<Bell>b<Bell><Bell><Bell><Bell><Bell><Bell><Bell>", "ab", 2},
    {"a double ESC or Ctrl-U doesn't clear",       "a<Esc><Esc><Esc><Esc>b<^U>", "a<Bell><Erase 1>b<Erase 1>",   "",    0},
    {"0xFF after ESC stays in the input",          "a<Esc><FF>",               "a<Bell>",                        "a",   1},
    {"two TABs make a pair in spite of a byte between them", "s<Tab><00><Tab><80><Tab><FF><Tab>",
        "s<Bell><Erase 1>s<Bell><Erase 1>s<Bell><Bell><Erase 1>s<Bell><Bell><Erase 1>s", "s", 1},
    {"a TAB and an ESC make a pair",               "z<Tab><Esc><FF>",          "z<Bell><Bell>",                  "z",   1},
    // cases: bytes that aren't keys, and unknown sequences; the bytes after the first unknown one are
    // inserted
    {"a byte of 0x80 or above is a key code",      "a<EB><F8>",                "a<Bell><Bell>",                  "a",   1},
    {"a control character is inserted",            "<01><04><1A>",             "<Bell><Bell><Bell>",             "",    0},
    {"too much of a sequence is read", "<Esc>[22~<Esc>[16~<Esc>[7~<Esc>[1x~",  "<Bell><Bell>~<Bell><Bell>~<Bell><Bell>~<Bell><Bell>~", "~~~~", 4},
    {"too little of a sequence is read", "<Esc>OP<Esc>[Z<Esc>x<Esc><80><Esc>[<FF><Esc>[[A", "<Bell><Bell>P<Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell>A", "PA", 2},
    {"a key without a function rings twice",
        "<Esc>[5~<Esc>[6~<Esc>[12~<Esc>[14~<Esc>[15~<Esc>[17~<Esc>[18~<Esc>[19~<Esc>[20~<Esc>[21~<Esc>[23~<Esc>[24~",
        "<Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell><Bell>", "", 0},
    // cases: the line that TAB produces
    {"a synonym makes a word ambiguous",           "show fa<Tab>",             "show fa<Erase 7>SHOW FAN ",      "SHOW FAN ", 9},
    {"a synonym is replaced with its command",     "show fans Xy<Tab>",        "show fans Xy<Erase 12>SHOW FANS Xy ", "SHOW FANS Xy ", 13},
    {"a prefix that isn't the last word matches",  "sho fan<Tab>",             "sho fan<Bell>",                  "sho fan", 7},
    {"a longer word matches, or has alternatives", "showx<Tab><Tab>",          "showx<Bell><Bell>",              "showx", 5},
    {"extra spaces stay, or quotes have a meaning", " set  name \"My  b<Tab>", " set  name \"My  b<Erase 17>SET NAME \"My b ", "SET NAME \"My b ", 15},
    {"an empty line rings the bell or has alternatives", "<Tab><Tab> <Tab><Tab>", " ",                          " ",   1},
    {"the 25th word is lost",                      "<24Words> y <Tab>",        "<24Words> y <Erase 50><24Words> y ", "<24Words> y ", 50},
    {"the 26th word is lost",                      "<24Words> y z<Tab>",       "<24Words> y z<Bell>",            "<24Words> y z", 51},
    // cases: the screen after TAB and F1
    {"the cursor stays inside the word",           "sh<Left><Tab>",            "sh<BS><Erase 1>SHOW ",           "SHOW ", 5},
    {"the TAB after a completed word is the second of a pair", "sh<Tab><Tab>", "sh<Erase 2>SHOW <Erase 5>SHOW ", "SHOW ", 5},
    {"the TAB after a completed prefix is the second of a pair", "show s<Tab><Tab>",
        "show s<Bell><Erase 6>SHOW SER<Bell><Erase 8>SHOW SER", "SHOW SER", 8},
    {"a single candidate is listed",               "show <Tab><Tab>",          "show <Erase 5>SHOW ",            "SHOW ", 5},
    {"a synonym is listed",                        "show f<Tab><Tab>",
        "show f<Bell><Erase 6>SHOW f<Bell><NL>[ F1 | FAN ]<NL>brantcli> SHOW f", "SHOW f", 6},
    {"the third TAB makes a pair with the second", "s<Tab><Tab><Tab>", "s<Bell><Erase 1>s<Bell><NL>[ SET | SHOW ]<NL>brantcli> s<Bell><Erase 1>s", "s", 1},
    {"F1 on an empty line or an unknown word shows other help", "<F1>SHOW x<F1>",
        "<Erase 10><RootHelp><NL>brantcli> SHOW x<Erase 16><Bell><RootHelp><NL>brantcli> SHOW x", "SHOW x", 6},
    {"F1 moves the cursor to the end",             "show fa<Left><F1>",
        "show fa<BS>a<Erase 17><NL>USAGE: SHOW FANS: Shows info on installed fans.<NL>brantcli> SHOW FAN <BS><BS><BS>", "SHOW FAN ", 6},
    {"F1 leaves the cursor beyond a line that it shortens, or ignores a command with an argument", "show    fans x<F1>y",
        "show    fans x<Erase 24><NL>USAGE: SHOW FANS: Shows info on installed fans.<NL>brantcli> SHOW FANS x y", "SHOW FANS x y", 13},
    {"F1 doesn't move the cursor to the end after a list", "show s<Home><F1>",
        "show s<BS><BS><BS><BS><BS><BS>show s<Erase 16><Bell><Bell><NL>[ SERIAL | SERVER ]<NL>brantcli> SHOW SER", "SHOW SER", 8},
};
// clang-format on

InputLineType line;

bool at_prompt = false;

// The state of the shell after start-up; there is no terminal.
struct Shell : FreshState {
    Shell() {
        // If a test read to the end of the input, the editor would end the process with status 0, which looks
        // like success.
        static const int registered = std::atexit([] {
            if (at_prompt) std::abort();
        });
        EXPECT_EQ(registered, 0);
        EXPECT_TRUE(AllocateHistory());
        CreateCommands();
    }
};

// Types `keys` and stores the line that results in `line`. Returns the output, including the prompt.
std::string Type(const std::string& keys) {
    const std::string bytes = Bytes(keys);
    int keyboard[2];
    EXPECT_EQ(pipe(keyboard), 0);
    EXPECT_EQ(write(keyboard[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
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
    const Shell shell;
    std::memset(History[0], 'x', kBytes);
    history_index = 7;
    FreeHistory();
    ASSERT_TRUE(AllocateHistory() && history_index == 0);
    EXPECT_EQ(std::count(History[0], History[0] + kBytes, '\0'), kBytes) << "the buffers aren't zeroed";
    std::memset(History[1], 'x', kHistorySlotSize);
    StoreInHistory("aa");
    EXPECT_EQ(std::count(History[1], History[1] + kHistorySlotSize, '\0'), kHistorySlotSize);
    Type("aa<Enter>");
    EXPECT_EQ(history_index, 1) << "a repeated command is stored twice";
    EXPECT_TRUE(RepeatsNewest("aa"));
    EXPECT_FALSE(RepeatsNewest("AA"));
    EXPECT_FALSE(RepeatsNewest("a"));
    EXPECT_FALSE(RepeatsNewest("aa "));
    Type("\"\"<Enter>");
    EXPECT_EQ(history_index, 2) << "a line whose only word is empty isn't stored";
}

TEST(Editor, WritesTheRightBytesForEachKey) {
    const Shell shell;
    for (const KeyCase& c : kKeys) {
        SCOPED_TRACE(std::string(c.keys) + ": " + c.catches);
        EXPECT_EQ(Type(c.keys + std::string("<Enter>")), kPrompt + Bytes(c.written));
        EXPECT_EQ(line.CmdLine, Bytes(c.line));
    }
}

TEST(Editor, ShowsLineAndCursorOnATerminal) {
    const TestMachine machine("tr500k2");
    TerminalSession session(machine);
    session.ReceiveUntil("\n" + kPrompt);
    for (const KeyCase& c : kKeys) {
        SCOPED_TRACE(std::string(c.keys) + ": " + c.catches);
        const std::string written = Bytes(c.written), text = Bytes(c.line);
        session.Type(Bytes(c.keys));
        ASSERT_EQ(session.ReceiveUntil(written), written);
        EXPECT_EQ(session.screen.CursorLine(), Trimmed(kPrompt + text));
        EXPECT_EQ(session.screen.Cursor().col, static_cast<int>(kPrompt.size()) + c.column)
            << "the cursor is in the wrong column";
        session.Type(Bytes("<^C>"));
        session.ReceiveUntil(text.substr(static_cast<size_t>(c.column)) + Erased(text.size()));
    }
}

TEST(Editor, LimitsTheLengthOfALine) {
    const Shell shell;
    const std::string longest = "help " + std::string(246, 'x'), completed = "HELP" + longest.substr(4) + " ";
    EXPECT_EQ(Type(longest + "<Tab><Enter>"), kPrompt + longest + Erased(251) + completed);
    EXPECT_EQ(line.CmdLine, completed);
    EXPECT_EQ(Type(longest + "x<Tab><Insert><Enter>"), kPrompt + longest + "x\a \b")
        << "TAB has completed a line beyond the limit, or Insert has moved the cursor beyond it";
    EXPECT_EQ(line.CmdLine, longest + "x ");
    EXPECT_NE(Type(longest + "x<F1><Enter>").find(Bytes("<Bell><RootHelp>")), std::string::npos);
    Type(longest + "x<Home><Right>123<Delete><Enter>");
    EXPECT_EQ(line.CmdLine, "h12" + longest.substr(2) + "x")
        << "the buffer should take exactly two more characters";
    const std::string recalled = line.CmdLine, rejection = "\a\nInvalid Command - command line too long.";
    Type(std::string(253, 'x'));
    EXPECT_EQ(Type("<Up><Enter>"), kPrompt + recalled + rejection)
        << "a rejected line is stored, a stored one is truncated, or only typing makes a line too long";

    std::string full(254, 'a');
    EXPECT_EQ(InsertChar(0, 'b', full.data()), -1);
    EXPECT_EQ(DeleteChar(-1, full.data()), -1);
    EXPECT_EQ(DeleteChar(254, full.data()), -1);
    EXPECT_EQ(DeleteChar(253, full.data()), 253);
    EXPECT_EQ(full.c_str(), std::string(253, 'a'));
}

// The rest of a line that is too long must not run as a command. The editor discards the rest up to Enter if
// the input is a pipe; on a terminal it discards what has already been typed.
TEST(Editor, DiscardsALineThatIsTooLongAndItsRest) {
    const TestMachine machine("tr500k2");
    const std::string too_long = "SET ASSET " + std::string(243, 'x'), log = machine.Read("cevt/hlog"),
                      rejection =
                          kPrompt + too_long + "\a\nInvalid Command - command line too long.\n" + kPrompt;
    const std::string script = "{ printf 'HELP EXIT\\n" + too_long + "CLEAR'; sleep .1; " +
                               "printf ' HLOG\\t\\377\\nHELP QUIT\\n'; } | " + InShell("brantcli");
    const std::string output = RunProgram("/bin/sh", {"-c", script}, machine.Directory()).output;
    ASSERT_NE(output.find(rejection), output.npos) << output;
    EXPECT_EQ(output.substr(output.find(rejection)),
              rejection + "HELP QUIT\nUSAGE: QUIT: Exit brantcli.\n" + kPrompt + "\n");
    EXPECT_EQ(machine.Type(too_long).status, 0)
        << "expected status 0 if the input ends inside the discarded line";
    EXPECT_EQ(machine.Type("CLEAR HLOG").output.find("cleared"), std::string::npos)
        << "a line without Enter was run";

    TerminalSession session(machine);
    session.ReceiveUntil("\n" + kPrompt);
    session.Type(too_long + "CLEAR HLOG");
    EXPECT_EQ(kPrompt + session.ReceiveUntil("\n" + kPrompt), rejection);
    session.Type(too_long + "CLEAR HLOG\rexit\r");
    EXPECT_EQ(session.End(), 0);
    EXPECT_EQ(machine.Read("cevt/hlog"), log) << "the rest of the rejected line, CLEAR HLOG, was run";
}

// clang-format off
// A simple model of the editor: a string and an index. Each capital letter is a key; other characters are
// inserted.
struct Model {
    std::vector<std::string> entered;  // all lines that were entered; the last 49 can be recalled
    std::string line;
    size_t cursor = 0, recalled = 0;
    int bells = 0;  // number of expected bells

    void Recall(size_t index) {
        recalled = index;
        line = index < entered.size() ? entered[index] : "";
        cursor = line.size();
    }
    std::string Press(char key) {  // presses a key; returns its name for Bytes()
        if (std::string(cursor == 0 ? "LH" : "").find(key) != std::string::npos) ++bells;
        if (std::string(cursor == line.size() ? "RED" : "").find(key) != std::string::npos) ++bells;
        const bool has_older = recalled > 0 && recalled + 49 > entered.size();
        if (key == 'U' && !has_older) ++bells;
        switch (key) {
            case 'L': cursor -= cursor > 0;                                           return "<Left>";
            case 'R': cursor += cursor < line.size();                                 return "<Right>";
            case 'H': cursor = 0;                                                     return "<Home>";
            case 'E': cursor = line.size();                                           return "<End>";
            case 'D': line.erase(cursor, 1);                                          return "<Delete>";
            case 'I': if (line.size() < 254) line.insert(cursor, 1, ' ');             return "<Insert>";
            case 'B': if (cursor > 0) line.erase(--cursor, 1);                        return "<BS>";
            case 'C': Recall(entered.size());                                         return "<^C>";
            case 'U': if (has_older) Recall(recalled - 1);                            return "<Up>";
            case 'P': Press('U');                                                     return "<F3>";
            case 'N': if (recalled < entered.size()) Recall(recalled + 1);            return "<Down>";
            default:  if (line.size() < 254) line.insert(cursor++, 1, key);           return {key};
        }
    }
    bool TooLong() const { return cursor > 252; }
    bool HasWords() const { return !TooLong() && line.find_first_not_of(' ') != line.npos; }
    void Enter() {
        if (HasWords() && (entered.empty() || entered.back() != line)) entered.push_back(line);
        Recall(entered.size());
    }
};
// clang-format on

RC_GTEST_PROP(Editor, AgreesWithASimpleModel, ()) {
    const Shell shell;
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
        const std::string written = Type(keys + "<NL>");
        RC_LOG() << "keys: " << keys << "\nwritten: " << written << "\n";
        RC_ASSERT(std::count(written.begin(), written.end(), '\a') == model.bells + model.TooLong());
        RC_ASSERT(line.CmdLine == model.line);
        RC_ASSERT((line.Words[0] != nullptr) == model.HasWords());
        Screen screen(300);
        screen.Show(written.substr(0, written.find('\n')));
        RC_ASSERT(screen.CursorLine() == Trimmed(kPrompt + model.line));
        RC_ASSERT(screen.Cursor().col == static_cast<int>(kPrompt.size() + model.cursor));
        model.Enter();
    }
}

}  // namespace
