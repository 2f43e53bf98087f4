#include "mkmachine/machine_builder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "src/utils/standard_streams.h"

namespace {

[[noreturn]] void FailOn(const std::string& path) {
    throw std::system_error(errno, std::generic_category(), path);
}

// Writes `bytes` at `offset` of a file, which it creates if necessary. `flags` are additional flags for
// open().
void WriteFile(const std::string& path, int flags, const std::string& bytes, off_t offset = 0) {
    const int fd = open(path.c_str(), flags | O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0) FailOn(path);
    if (lseek(fd, offset, SEEK_SET) < 0 || !WriteAll(fd, bytes) || close(fd) != 0) FailOn(path);
}

}  // namespace

MachineBuilder::MachineBuilder(std::string directory) : directory_(std::move(directory)) {
    std::filesystem::create_directories(directory_);
    for (const char* device : {"/cdt", "/casr", "/crom", "/cevt"}) {
        const std::string path = directory_ + device;
        if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) FailOn(path);
    }
    Write("cevt/hlog", "");
}

void MachineBuilder::Write(const std::string& path, const std::string& bytes) {
    WriteFile(directory_ + "/" + path, O_TRUNC, bytes);
}

void MachineBuilder::Append(const std::string& path, const std::string& bytes) {
    WriteFile(directory_ + "/" + path, O_APPEND, bytes);
}

void MachineBuilder::Remove(const std::string& path) {
    std::filesystem::remove_all(directory_ + "/" + path);
}

void MachineBuilder::PhysicalMemory(uint64_t address, const std::string& bytes) {
    WriteFile(directory_ + "/xsvc", 0, bytes, static_cast<off_t>(address));
}

std::string MachineBuilder::TableFile(int type, int index, int index2) {
    return "cdt/" + std::to_string(type) + "." + std::to_string(index) + "." + std::to_string(index2);
}
