// Fuzzes the parser of HTTP requests.
//
// Input: one byte, then the bytes from the client. The byte selects how many of them have arrived first.
#include "brantexport/http.h"

#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::string received = Input(data, size);
    const unsigned part = Number(Take(received, 1));
    const HttpRequest request = ParseHttpRequest(received);
    const int status = request.status;
    Require(status == 0 || status == 200 || status == 400 || status == 404 || status == 405);

    // A decision is final: bytes that arrive later don't change it.
    const HttpRequest early = ParseHttpRequest(received.substr(0, received.size() * part / 256));
    Require(early.status == 0 || early.status == status);
    Require(!early.is_head || request.is_head);

    const std::string header = received.substr(0, received.find("\r\n\r\n", 2));
    const char* const method = request.is_head ? "HEAD " : "GET ";
    const size_t start = header.compare(0, 2, "\r\n") == 0 ? 2 : 0;
    if (status == 200) {
        Require(header.size() < received.size() && header.find('\0') == header.npos);
        Require(header.compare(start, std::string(method).size(), method) == 0);
        Require(header.find("/metrics") != header.npos);
    }
    return 0;
}
