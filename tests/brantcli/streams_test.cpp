// The standard streams as a caller may leave them: closed, or non-blocking with a slow reader.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "tests/support/test_machine.h"

namespace {

struct StreamCase {
    const char* program;
    const char* words;
    const char* streams;  // closed by the caller
    const char* errors;
};

constexpr char kNoNull[] = "ERROR: Could not open /dev/null: No such file or directory.\n";

// A stream that can't be replaced ends the program before it opens anything: what it prints would be written
// into the first file that it opens.
TEST(Streams, EndTheProgramIfOneIsMissing) {
    const StreamCase cases[] = {
        {"brantcli_interposed", "-s 'SET UID ON'", "<&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", ">&-", kNoNull},
        {"brantcli_interposed", "-s 'SET UID ON'", "2>&-", ""},
        {"savemachine_interposed", "$BRANT_MACHINE/copy", ">&-", kNoNull},
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

// Runs a program whose standard output is a small non-blocking pipe. Reads it after a pause, up to `limit`
// bytes.
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
    usleep(100000);  // the program fills the pipe
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

TEST(Streams, WaitForASlowReaderIfOutputIsNonBlocking) {
    const TestMachine machine("tr500k2");
    const std::vector<std::string> commands = {"-s", "HELP TREE;SHOW HLOG;SHOW FANS"};
    for (const auto& [program, arguments] : {std::pair{"brantcli", commands}, {"brantexport", {}}}) {
        const RunResult blocking = RunProgram(ProgramPath(program), arguments, machine.Directory());
        const RunResult run = RunNonBlocking(program, arguments, machine, blocking.output.size() + 1);
        EXPECT_GT(run.output.size(), 3 * 4096U);
        EXPECT_EQ(run.output, blocking.output) << program;
        EXPECT_EQ(run.status, 0) << program;
        EXPECT_EQ(RunNonBlocking(program, arguments, machine, 1).status, 1) << program << ", reader gone";
    }
}

}  // namespace
