#include "brantexport/http.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/times.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>

#include "src/utils/descriptor.h"
#include "src/utils/text.h"
#include "src/utils/utc.h"

namespace {

constexpr char kPath[] = "/metrics";
constexpr char kMetricsType[] = "text/plain; version=0.0.4; charset=utf-8";
constexpr char kTextType[] = "text/plain; charset=utf-8";

// Time limits in milliseconds. Each is the total of all reads or writes.
constexpr int kRequestTime = 5000;
constexpr int kAnswerTime = 5000;
constexpr int kEndTime = 1000;  // for the client to close the connection after it has received the answer

bool use_system_log = false;  // true: standard error was the connection and is /dev/null now

bool IsSameSocket(int a, int b) {
    struct stat stat_a {
    }, stat_b{};
    return fstat(a, &stat_a) == 0 && fstat(b, &stat_b) == 0 && S_ISSOCK(stat_a.st_mode) &&
           stat_a.st_dev == stat_b.st_dev && stat_a.st_ino == stat_b.st_ino;
}

bool IsLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Returns whether `text` isn't empty and consists of letters, digits and the characters in `others`.
bool ConsistsOf(std::string_view text, std::string_view others) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [&](char c) {
        return IsLetterOrDigit(c) || others.find(c) != others.npos;
    });
}

// Returns whether `text` is a method or the name of a field.
bool IsToken(std::string_view text) {
    return ConsistsOf(text, "!#$%&'*+-.^_`|~");
}

// Returns whether `text` may be a host name or address, with or without a port.
bool IsHost(std::string_view text) {
    return ConsistsOf(text, "-._~!$&'()*+,;=%:[]");
}

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
}

bool IsControl(char c) {
    return (c >= 0 && c < ' ' && c != '\t') || c == 127;
}

// Parses the header of a request.
class Header {
  public:
    // Parses the next line, without its CR LF. Returns false if it is malformed.
    bool AddLine(std::string_view line);
    // Returns false if the fields contradict each other or Host is missing, after the last line.
    bool Finish() const;
    // Returns the status of the answer to a request that isn't malformed.
    int Status() const { return status_; }
    bool IsHead() const { return is_head_; }

  private:
    bool AddRequestLine(std::string_view line);
    bool AddTarget(std::string_view target);
    bool AddField(std::string_view line);

    int lines_ = 0;
    int status_ = 0;
    bool is_head_ = false;
    bool is_http_1_1_ = false;
    int hosts_ = 0;
    int lengths_ = 0;
    int encodings_ = 0;
};

bool Header::AddLine(std::string_view line) {
    return lines_++ == 0 ? AddRequestLine(line) : AddField(line);
}

// Parses the request line: METHOD TARGET VERSION
bool Header::AddRequestLine(std::string_view line) {
    const std::string_view method = line.substr(0, line.find(' '));
    if (!IsToken(method)) return false;
    line.remove_prefix(std::min(method.size() + 1, line.size()));
    const std::string_view target = line.substr(0, line.find(' '));
    line.remove_prefix(std::min(target.size() + 1, line.size()));
    const auto is_visible = [](char c) { return c > ' ' && c < 127; };
    if (target.empty() || !std::all_of(target.begin(), target.end(), is_visible)) return false;
    is_http_1_1_ = line == "HTTP/1.1";
    if (!is_http_1_1_ && line != "HTTP/1.0") return false;
    is_head_ = method == "HEAD";
    if (method == "GET" || is_head_) return AddTarget(target);
    status_ = 405;
    return true;
}

// Parses the target: /PATH?QUERY, or http://HOST/PATH?QUERY as sent to proxies. Ignores the query.
bool Header::AddTarget(std::string_view target) {
    constexpr std::string_view kScheme = "http://";
    if (strcmpi(target.substr(0, kScheme.size()), kScheme) == 0) {
        target.remove_prefix(kScheme.size());
        const std::string_view host = target.substr(0, target.find_first_of("/?"));
        if (!IsHost(host)) return false;
        target.remove_prefix(host.size());
    } else if (target[0] != '/') {
        return false;
    }
    status_ = target.substr(0, target.find('?')) == kPath ? 200 : 404;
    return true;
}

// Parses a field: NAME: VALUE. A line that begins with a space would continue the previous field. This form
// is obsolete and is rejected, because a name contains no spaces.
bool Header::AddField(std::string_view line) {
    const std::string_view name = line.substr(0, line.find(':'));
    if (!IsToken(name) || name.size() == line.size()) return false;
    std::string_view value = line.substr(name.size() + 1);
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    value = value.substr(0, value.find_last_not_of(" \t") + 1);
    if (strcmpi(name, "Host") == 0) return ++hosts_ == 1 && (value.empty() || IsHost(value));
    if (strcmpi(name, "Content-Length") == 0) return ++lengths_ == 1 && IsNumber(value);
    if (strcmpi(name, "Transfer-Encoding") == 0) ++encodings_;
    return true;
}

bool Header::Finish() const {
    const bool is_length_ambiguous = lengths_ > 0 && encodings_ > 0;
    return (hosts_ == 1 || !is_http_1_1_) && !is_length_ambiguous && (encodings_ == 0 || is_http_1_1_);
}

// The end of a time limit. It is measured with times(), which counts clock ticks since the system's start, so
// setting the system's clock doesn't change it.
class Deadline {
  public:
    explicit Deadline(int milliseconds) : start_(Now()), milliseconds_(milliseconds) {}
    // Returns the milliseconds that are left; 0 after the deadline.
    int Left() const {
        const unsigned long elapsed =
            (Now() - start_) * 1000 / static_cast<unsigned long>(sysconf(_SC_CLK_TCK));
        return std::max(milliseconds_ - static_cast<int>(std::min(elapsed, 1000000UL)), 0);
    }

  private:
    static unsigned long Now() {
        tms unused{};
        return static_cast<unsigned long>(times(&unused));
    }

    unsigned long start_;
    int milliseconds_;
};

// Waits for one of `events` of the descriptor. Returns false after the deadline or if poll() fails.
bool WaitFor(int fd, short events, const Deadline& deadline) {
    while (const int left = deadline.Left()) {
        pollfd waiting = {fd, events, 0};
        const int ready = poll(&waiting, 1, left);
        if (ready > 0) return true;
        if (ready < 0 && errno != EINTR) return false;
    }
    return false;
}

// Reads a request. The status is 0 if reading fails or the client closes the connection without sending
// anything.
HttpRequest ReadRequest(int input) {
    const Deadline deadline(kRequestTime);
    std::string received;
    HttpRequest request;
    const auto failed = [&](int status) { return HttpRequest{status, request.is_head}; };
    while (request.status == 0) {
        if (received.size() == kMaxHttpRequest) return failed(431);
        if (!WaitFor(input, POLLIN, deadline)) return failed(408);
        char chunk[kMaxHttpRequest];
        const ssize_t count = read(input, chunk, kMaxHttpRequest - received.size());
        if (count < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (count <= 0) return failed(received.empty() || count < 0 ? 0 : 400);
        received.append(chunk, static_cast<size_t>(count));
        request = ParseHttpRequest(received);
    }
    return request;
}

const char* PhraseOf(int status) {
    switch (status) {
        case 200: return "OK";
        case 400: return "Bad Request";
        case 404: return "Not Found";
        case 405: return "Method Not Allowed";
        case 408: return "Request Timeout";
        case 431: return "Request Header Fields Too Large";
        default: return "Service Unavailable";
    }
}

std::string AnswerTo(const HttpRequest& request, std::string_view type, std::string_view body) {
    std::string answer;
    const auto add = [&](std::string_view line) { answer.append(line).append("\r\n"); };
    add("HTTP/1.1 " + std::to_string(request.status) + ' ' + PhraseOf(request.status));
    add("Date: " + HttpDate(Milliseconds() / 1000));
    add("Content-Type: " + std::string(type));
    add("Content-Length: " + std::to_string(body.size()));
    if (request.status == 405) add("Allow: GET, HEAD");
    add("Connection: close");
    add("");
    if (!request.is_head) answer += body;
    return answer;
}

// Writes all of `bytes` to a descriptor. Returns false if that fails or takes longer than the deadline.
bool WriteUntil(const Deadline& deadline, int output, std::string_view bytes) {
    const int flags = fcntl(output, F_GETFL);
    if (flags < 0 || fcntl(output, F_SETFL, flags | O_NONBLOCK) < 0) return false;
    bool waited = true;
    while (waited && !WriteRest(output, bytes)) {
        waited = errno == EAGAIN && WaitFor(output, POLLOUT, deadline);
    }
    fcntl(output, F_SETFL, flags);  // a terminal is shared with the shell
    return waited;
}

// Waits until the client closes the connection, and discards the bytes that it still sends. If the program
// closed the connection with unread bytes, the client would get a reset and could lose the answer.
void EndConnection(int input, int output) {
    if (shutdown(output, SHUT_WR) != 0) return;  // not a connection
    const Deadline deadline(kEndTime);
    char discarded[4096];
    while (WaitFor(input, POLLIN, deadline) && read(input, discarded, sizeof discarded) > 0) {
    }
}

}  // namespace

bool SeparateMessages(int output) {
    if (!IsSameSocket(STDERR_FILENO, output)) return true;
    use_system_log = true;
    const Descriptor null(open("/dev/null", O_WRONLY));
    return null && dup2(null.Get(), STDERR_FILENO) >= 0 && dup2(null.Get(), STDOUT_FILENO) >= 0;
}

void ReportRootRemains(const char* program, const char* user, const char* reason) {
    if (use_system_log) {
        syslog(LOG_DAEMON | LOG_ERR, "%s: can't become the user %s: %s", program, user, reason);
    } else {
        std::fprintf(stderr, "%s: can't become the user %s: %s\n", program, user, reason);
    }
}

HttpRequest ParseHttpRequest(std::string_view received) {
    Header header;
    const auto result = [&](int status) { return HttpRequest{status, header.IsHead()}; };
    if (StartsWith(received, "\r\n"))
        received.remove_prefix(2);  // some clients send CR LF after the body of a request
    while (true) {
        // An incomplete line is checked, too, so that a TLS client gets its answer immediately: it sends
        // control characters, but perhaps no line end.
        const size_t size = received.find('\n');
        std::string_view line = received.substr(0, size);
        const bool ends_with_return = !line.empty() && line.back() == '\r';
        if (ends_with_return) line.remove_suffix(1);
        if (std::any_of(line.begin(), line.end(), IsControl)) return result(400);
        if (size == received.npos) return result(0);
        if (!ends_with_return) return result(400);
        if (line.empty()) break;
        if (!header.AddLine(line)) return result(400);
        received.remove_prefix(size + 1);
    }
    return result(header.Finish() && header.Status() != 0 ? header.Status() : 400);
}

bool ServeHttpRequest(int input, int output, std::string_view metrics, std::string_view failure) {
    HttpRequest request = ReadRequest(input);
    if (request.status == 0) return false;
    std::string body;
    if (request.status != 200) {
        body = std::string(PhraseOf(request.status)) + '\n';
    } else if (metrics.empty()) {
        request.status = 503;
        body = std::string(failure) + '\n';
    }
    const bool is_ok = request.status == 200;
    const Deadline deadline(kAnswerTime);
    const std::string answer =
        AnswerTo(request, is_ok ? kMetricsType : kTextType, is_ok ? metrics : std::string_view(body));
    if (!WriteUntil(deadline, output, answer)) return false;
    EndConnection(input, output);
    return true;
}
