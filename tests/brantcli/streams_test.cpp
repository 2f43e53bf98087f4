// Tests with standard streams that the caller has closed or made non-blocking.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "src/utils/standard_streams.h"
#include "tests/support/pattern.h"
#include "tests/support/test_machine.h"

namespace {

struct StreamCase {
    const char* program;
    const char* words;
    const char* streams;  // shell redirections that close a stream
    const char* errors;
};

constexpr char kNoNull[] = "ERROR: Could not open /dev/null: No such file or directory.\n";

// If the program can't replace a closed stream, it must end before it opens anything. Otherwise its output
// would be written into the first file that it opens.
TEST(Streams, EndTheProgramIfAClosedOneCannotBeReplaced) {
    const StreamCase cases[] = {
        {"brantcli_interposed", "-s 'SET UID ON'", "<&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", ">&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", "2>&-", ""},
        {"savemachine_interposed", "$BRANT_MACHINE/copy", ">&-", kNoNull},
        {"brantexport_interposed", "uid", ">&-", kNoNull},
    };
    for (const StreamCase& c : cases) {
        TestMachine machine("tr300");
        machine.StartTrace();
        RunOptions options;
        options.environment = {"BRANT_NO_NULL=1"};
        const std::string command = "exec " + InShell(c.program) + " " + c.words + " " + c.streams;
        const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory(), options);
        EXPECT_EQ(run.output, "") << command;
        EXPECT_EQ(run.errors, c.errors) << command;
        EXPECT_EQ(run.status, 1) << command;
        EXPECT_EQ(machine.TakeTrace(), "") << command;
    }
}

// Runs a program whose standard output is a small non-blocking pipe. After a pause, reads up to `limit` bytes
// of the output.
RunResult RunNonBlocking(const char* program, const std::vector<std::string>& arguments,
                         const TestMachine& machine, size_t limit) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("pipe2");
    fcntl(ends[1], F_SETPIPE_SZ, 4096);
    const pid_t child = fork();
    if (child == 0) {
        fcntl(ends[1], F_SETFL, O_NONBLOCK);
        dup2(ends[1], STDOUT_FILENO);
        dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
        setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
        ExecProgram(ProgramPath(program), arguments);
    }
    close(ends[1]);
    usleep(100000);  // so that the program fills the pipe
    RunResult run;
    char chunk[4096];
    for (ssize_t count = 1; count > 0 && run.output.size() < limit;) {
        count = read(ends[0], chunk, sizeof chunk);
        run.output.append(chunk, static_cast<size_t>(std::max<ssize_t>(count, 0)));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    run.status = WEXITSTATUS(status);
    return run;
}

// Removes the time and the duration of the run from brantexport's output.
std::string WithoutTimes(const std::string& output) {
    return ReplaceAll(output, "\"(exported_at|duration_ms)\": [^\n]+", "");
}

TEST(Streams, LoseNoOutputIfItIsNonBlockingAndTheReaderSlow) {
    const TestMachine machine("tr500k2");
    const std::vector<std::string> commands = {"-s", "HELP TREE;SHOW HLOG;SHOW FANS"};
    for (const auto& [program, arguments] : {std::pair{"brantcli", commands}, {"brantexport", {}}}) {
        const RunResult blocking = RunProgram(ProgramPath(program), arguments, machine.Directory());
        const RunResult run = RunNonBlocking(program, arguments, machine, blocking.output.size() + 1);
        EXPECT_GT(run.output.size(), 3 * 4096U);
        EXPECT_EQ(WithoutTimes(run.output), WithoutTimes(blocking.output)) << program;
        EXPECT_EQ(run.status, 0) << program;
        EXPECT_EQ(RunNonBlocking(program, arguments, machine, 1).status, 1)
            << program << " should fail if its reader is gone";
    }
}

TEST(Streams, HaveTheirOriginalModeAfterTheRun) {
    int ends[2];
    ASSERT_EQ(pipe2(ends, O_CLOEXEC | O_NONBLOCK), 0);
    std::fflush(stdout);
    const int found = dup(STDOUT_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    MakeOutputBlocking();
    FinishOutput();
    const int restored = fcntl(ends[1], F_GETFL);
    fcntl(ends[1], F_SETFL, O_APPEND);
    FinishOutput();
    const int kept = fcntl(ends[1], F_GETFL);
    dup2(found, STDOUT_FILENO);
    EXPECT_NE(restored & O_NONBLOCK, 0);
    EXPECT_EQ(kept & (O_NONBLOCK | O_APPEND), O_APPEND) << "restored twice";
    for (const int fd : {ends[0], ends[1], found}) close(fd);
}

}  // namespace
