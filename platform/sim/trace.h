// The machine's file `trace`: when it exists, every call of the seam appends a line to it.
#pragma once

class TraceFile {
  public:
    // Looks for the file. One that exists and can't be written is reported on standard error.
    TraceFile();
    ~TraceFile();
    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

    // Appends a line, which ends in the format's newline; cuts one that is too long. Does nothing when the
    // machine isn't traced.
    __attribute__((format(printf, 2, 3))) void Append(const char* format, ...) const;

  private:
    int fd_;  // -1: no trace
};
