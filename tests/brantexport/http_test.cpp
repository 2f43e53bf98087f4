// Tests of brantexport --http: requests and answers, slow clients, and what is left of root.
#include "brantexport/http.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "src/utils/utc.h"
#include "tests/support/pattern.h"
#include "tests/support/test_machine.h"

namespace {

constexpr char kGet[] = "GET /metrics HTTP/1.0\r\n\r\n";

struct ParseCase {
    std::string request;
    int status;
};

TEST(HttpRequest, HasAStatus) {
    const auto get = [](const std::string& target) { return "GET " + target + " HTTP/1.0\r\n\r\n"; };
    const auto with = [](const std::string& fields) {
        return "GET /metrics HTTP/1.1\r\nHost: h\r\n" + fields + "\r\n";
    };
    const ParseCase cases[] = {
        {with(""), 200},
        {with("0Az:\r\n9Za:\t \xE4\tb: c \r\nContent-Length: 0\r\n"), 200},
        {"GET /metrics HTTP/1.1\r\nHOST:\r\nTransfer-Encoding: chunked\r\n\r\n", 200},
        {"\r\nHEAD /metrics HTTP/1.1\r\nhost:[::1]:80\r\n\r\n", 200},
        {get("/metrics?name=value/&x"), 200},
        {get("HTTP://server:80/metrics?"), 200},
        {get("/metrics/"), 404},
        {get("/"), 404},
        {get("http://server?/metrics"), 404},
        {"POST /x HTTP/1.0\r\n\r\n", 405},
        {"get /metrics HTTP/1.0\r\n\r\n", 405},
        {"OPTIONS * HTTP/1.1\r\nHost: h\r\n\r\n", 405},
        {get("metrics"), 400},
        {get("http:///metrics"), 400},
        {get("http://user@server/metrics"), 400},
        {get("/metrics /metrics"), 400},
        {get("/m\xE4trics"), 400},
        {get(""), 400},
        {"GET /metrics\r\n\r\n", 400},
        {"GET /metrics HTTP/2.0\r\n\r\n", 400},
        {"GET\t/metrics HTTP/1.0\r\n\r\n", 400},
        {"GET /metrics HTTP/1.0\n", 400},
        {"GET /metrics HTTP/1.0\r\r\n", 400},
        {"GET /metrics HTTP/1.1\r\n\r\n", 400},
        {"\r\n\r\n", 400},
        {"\x16\x03\x01", 400},
        {"GET /metrics HTTP/1.0\r\nHost: h\r\nHost: h\r\n\r\n", 400},
        {"GET /metrics HTTP/1.0\r\nTransfer-Encoding: chunked\r\n\r\n", 400},
        {with("a: b\r\n c: d\r\n"), 400},
        {with("a : b\r\n"), 400},
        {with("a\r\n"), 400},
        {with(": b\r\n"), 400},
        {with(std::string("a: \0\r\n", 6)), 400},
        {with("a: \x7F\r\n"), 400},
        {with("Content-Length: +1\r\n"), 400},
        {with("Content-Length: 1\r\nContent-Length: 1\r\n"), 400},
        {with("Content-Length: 1\r\nTransfer-Encoding: chunked\r\n"), 400},
        {"GET /metrics HTTP/1.1\r\nHost: a b\r\n\r\n", 400},
    };
    for (const ParseCase& c : cases) {
        EXPECT_EQ(ParseHttpRequest(c.request).status, c.status) << c.request;
        if (c.status == 400) continue;
        const std::string_view incomplete = std::string_view(c.request).substr(0, c.request.size() - 1);
        EXPECT_EQ(ParseHttpRequest(incomplete).status, 0) << c.request;
        EXPECT_EQ(ParseHttpRequest(c.request + "\n").status, c.status) << c.request;
    }
}

// Does what a program that starts the server may have done for its own use of the signal.
void BlockAndIgnore(int number) {
    struct sigaction action {};
    action.sa_handler = SIG_IGN;
    sigaction(number, &action, nullptr);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, number);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
}

// A process of brantexport --http whose standard streams are a socket, as under inetd.
class Server {
  public:
    explicit Server(const std::string& machine, int output = -1, const std::string& command = "") {
        int ends[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) throw std::runtime_error("socket");
        client_ = ends[0];
        child_ = fork();
        if (child_ == 0) {
            setenv("BRANT_MACHINE", machine.c_str(), 1);
            BlockAndIgnore(SIGALRM);
            for (const int fd : {0, 1, 2}) dup2(fd == 1 && output >= 0 ? output : ends[1], fd);
            if (!command.empty()) ExecProgram("/bin/sh", {"-c", command});
            ExecProgram(ProgramPath("brantexport"), {"--http"});
        }
        close(ends[1]);
    }
    ~Server() {
        close(client_);
        if (child_ > 0) waitpid(child_, nullptr, 0);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    bool Send(const std::string& bytes) const {
        return send(client_, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
    }
    void CloseInput() const { shutdown(client_, SHUT_WR); }
    // Receives until the end. The answer ends with an error message if the connection is reset.
    std::string Receive() const {
        std::string answer;
        char chunk[4096];
        ssize_t count = 0;
        while ((count = read(client_, chunk, sizeof chunk)) > 0)
            answer.append(chunk, static_cast<size_t>(count));
        return count == 0 ? answer : answer + "(reset)";
    }
    int Wait() {
        int status = -1;
        waitpid(std::exchange(child_, -1), &status, 0);
        return status;
    }
    std::filesystem::path Process() const { return "/proc/" + std::to_string(child_); }

  private:
    int client_ = -1;
    pid_t child_ = -1;
};

constexpr char kDuration[] = "duration_seconds [0-9.]+";  // differs between two runs

struct AnswerCase {
    std::string request;
    std::string first_line;
    std::string rest;  // a pattern
};

TEST(Http, Answers) {
    TestMachine machine("tr300");
    machine.StartTrace();
    const std::string metrics =
        RunProgram(ProgramPath("brantexport"), {"--prometheus"}, machine.Directory()).output;
    const std::string calls = machine.TakeTrace();
    const AnswerCase cases[] = {
        {kGet, "200 OK",
         "Date: \\w+, \\d\\d \\w+ \\d{4} [0-9:]{8} GMT\r\n"
         "Content-Type: text/plain; version=0\\.0\\.4; charset=utf-8\r\nContent-Length: \\d{4}\r\n"
         "Connection: close\r\n\r\n# HELP [^]*# EOF\n"},
        {"HEAD /metrics HTTP/1.0\r\n\r\n", "200 OK", "[^]*\r\nContent-Length: \\d{4}\r\n[^]*\r\n\r\n"},
        {"HEAD /metrics HTTP/1.0\r\nunfinished", "400 Bad Request", "[^]*\r\n\r\n"},
        {"GET / HTTP/1.0\r\n\r\n", "404 Not Found",
         "[^]*\r\nContent-Type: text/plain; charset=utf-8\r\n[^]*\r\n\r\nNot Found\n"},
        {"PUT /metrics HTTP/1.0\r\n\r\n" + std::string(20000, 'x'), "405 Method Not Allowed",
         "[^]*\r\nAllow: GET, HEAD\r\n[^]*"},
        {"GET /metrics HTTP/1.0\r\na:" + std::string(kMaxHttpRequest - 29, 'x') + "\r\n\r\n" + kGet, "200 OK",
         "[^]*"},
        {"GET /metrics HTTP/1.0\r\na:" + std::string(kMaxHttpRequest - 28, 'x') + "\r\n\r\n" + kGet,
         "431 Request Header Fields Too Large", "[^]*"},
    };
    for (const AnswerCase& c : cases) {
        Server server(machine.Directory());
        EXPECT_TRUE(server.Send(c.request.substr(0, kMaxHttpRequest - 1)));
        if (c.request.size() >= kMaxHttpRequest) {
            usleep(100000);
            server.Send(c.request.substr(kMaxHttpRequest - 1));
        }
        server.CloseInput();
        const int status = server.Wait();  // first: a reset at the end would remove the answer
        const std::string answer = server.Receive();
        EXPECT_FALSE(MatchWhole(answer, "HTTP/1\\.1 " + c.first_line + "\r\n" + c.rest).empty())
            << c.request << answer;
        EXPECT_EQ(answer.find("(reset)"), answer.npos) << c.request;
        EXPECT_EQ(status, 0) << c.request;
        const std::string body = answer.substr(answer.find("\r\n\r\n") + 4);
        EXPECT_TRUE(body.empty() ||
                    Contains(answer, "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n"));
        if (&c == cases) {
            EXPECT_EQ(machine.TakeTrace(), calls);
            EXPECT_EQ(ReplaceAll(body, kDuration, ""), ReplaceAll(metrics, kDuration, ""));
        }
    }
    // Not a server: the client gets none of the messages, also if it closes the connection without a request.
    Server unused("/");
    unused.CloseInput();
    EXPECT_EQ(unused.Receive(), "");
    EXPECT_NE(unused.Wait(), 0);
    Server elsewhere("/");
    elsewhere.Send(kGet);
    elsewhere.CloseInput();
    EXPECT_TRUE(
        Contains(elsewhere.Receive(),
                 "^HTTP/1\\.1 503 Service Unavailable\r\n[^]*\r\n\r\nThis is not [^\r\n]*read\\.\n$"));
    EXPECT_EQ(elsewhere.Wait(), 0);
    EXPECT_EQ(HttpDate(784111777), "Sun, 06 Nov 1994 08:49:37 GMT");
}

TEST(Http, LimitsTheTimeOfSlowClients) {
    TestMachine machine("bx20");
    int full[2];
    ASSERT_EQ(pipe2(full, O_CLOEXEC | O_NONBLOCK), 0);
    while (write(full[1], "x", 1) == 1) {
    }
    fcntl(full[1], F_SETFL, 0);
    const auto start = std::chrono::steady_clock::now();
    Server rarely_reads(machine.Directory(), full[1]);
    Server slow(machine.Directory());
    const Server silent(machine.Directory());
    rarely_reads.Send(kGet);
    for (int i = 0; i < 100 && slow.Send("A"); ++i) {
        char page[4096];
        EXPECT_TRUE(i != 43 || read(full[0], page, sizeof page) == 4096);
        usleep(100000);
    }
    EXPECT_TRUE(Contains(slow.Receive() + silent.Receive(), "^(HTTP/1\\.1 408 Request Timeout\r\n[^]*){2}$"));
    EXPECT_NE(rarely_reads.Wait(), 0);
    EXPECT_EQ(fcntl(full[1], F_GETFL) & O_NONBLOCK, 0);
    EXPECT_EQ(slow.Wait(), 0);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_GT(elapsed.count(), 4.9);
    EXPECT_LT(elapsed.count(), 9);
    close(full[0]);
    close(full[1]);
}

// The process has given up root, and has only its connection open, before the client sends anything.
TEST(Http, ReadsTheRequestWithoutRoot) {
    if (getuid() != 0) GTEST_SKIP() << "only root can give up root";
    TestMachine machine("bx20");
    const Server server(machine.Directory());
    std::string status;
    for (int i = 0; i < 400 && !Contains(status, "\nUid:(\t65534){4}\n"); ++i) {
        usleep(10000);
        status = (std::ostringstream() << std::ifstream(server.Process() / "status").rdbuf()).str();
    }
    EXPECT_TRUE(Contains(status, "\nUid:(\t65534){4}\nGid:(\t65534){4}\n[^]*\nGroups:\t65534 ?\n")) << status;
    EXPECT_TRUE(Contains(status, "\nCapPrm:\t0+\n"));
    // Neither set of signals contains SIGALRM, the bit 0x2000, which ends the process.
    EXPECT_TRUE(Emulated() || Contains(status,
                                       "\nSigBlk:\t\\w{12}[014589cd]\\w{3}"
                                       "\nSigIgn:\t\\w{12}[014589cd]\\w{3}\n"))
        << status;
    for (const auto& file : std::filesystem::directory_iterator(server.Process() / "fd")) {
        const std::string target = std::filesystem::read_symlink(file);
        EXPECT_TRUE(Emulated() || Contains(target, "^(socket:|/dev/null)")) << target;
    }
}

TEST(Http, ServesNothingIfItStaysRoot) {
    TestMachine machine("bx20");
    RunOptions options;
    options.input = kGet;
    options.environment = {"BRANT_KILL_AT=0"};  // shows the time limit
    const std::string command =
        "setpriv --bounding-set=-setuid " + InShell("brantexport_interposed") + " --http";
    const RunResult run = RunProgram("/bin/sh", {"-c", command}, machine.Directory(), options);
    EXPECT_EQ(run.errors, "alarm 60\nbrantexport: can't become the user nobody: Operation not permitted\n");
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.status, 1);
    // If the messages would go to the client, the program uses the system log, with the priority
    // LOG_DAEMON | LOG_ERR, which is 27.
    EXPECT_EQ(Server(machine.Directory(), -1, command).Receive(),
              "27 brantexport: can't become the user nobody: Operation not permitted");
}

}  // namespace
