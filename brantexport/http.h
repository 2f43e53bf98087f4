// Serves the metrics over HTTP to a client that the system's inetd or systemd has connected to the standard
// streams.
#pragma once

#include <string>
#include <string_view>

// The largest request, up to the empty line that ends its header.
constexpr size_t kMaxHttpRequest = 8192;

// Prevents the client from getting the program's messages: if standard error is the same connection as
// `output`, redirects standard error and standard output to /dev/null, and makes ReportRootRemains() use the
// system log. Returns false on failure.
[[nodiscard]] bool SeparateMessages(int output);

// Reports that the process could not become `user`: on standard error or, if that was the connection, in the
// system log.
void ReportRootRemains(const char* program, const char* user, const char* reason);

struct HttpRequest {
    int status = 0;        // of the answer; 0 if the header of the request isn't complete
    bool is_head = false;  // the answer to HEAD has no body
};

// Parses the bytes that were received so far. The status is 200 if the request is GET or HEAD of /metrics,
// otherwise 400, 404 or 405. Bytes after the header don't change the result.
HttpRequest ParseHttpRequest(std::string_view received);

// Reads a request from `input` and writes the answer to `output`: the metrics, or status 503 with the text
// `failure` if the metrics are empty. Limits the time for reading the request, for writing the answer and for
// closing the connection, so that a client can't keep the process running. Returns false if the answer could
// not be written completely.
bool ServeHttpRequest(int input, int output, std::string_view metrics, std::string_view failure);
