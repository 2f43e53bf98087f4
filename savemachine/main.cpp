// savemachine [--redact] DIR: writes all data that the shell can read on this server into a machine
// directory. On this directory, the shell's SHOW commands print the same as on the server.

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <stdexcept>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/start-up/start_up.h"
#include "platform/request.h"
#include "savemachine/parts.h"
#include "src/utils/exceptions.h"
#include "src/utils/program_arguments.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kProgram[] = "savemachine";
constexpr char kUsage[] = "usage: savemachine [--redact] DIR\n";
constexpr char kDescription[] =
    "Copies this server's state into a simulated machine, the new directory DIR.\n\n"
    "  --redact   replace serial numbers, MAC addresses, names and texts\n"
    "  --help     print this text\n"
    "  --version  print the version\n\n"
    "See savemachine(8).\n";

struct Options {
    std::string directory;
    bool redact = false;
    std::string reply;  // reply to --help or --version
};

// Parses the command line, up to the first --help or --version. Returns false if it is invalid.
bool ReadOptions(int argc, char** argv, Options& options) {
    const std::string help = std::string(kUsage) + kDescription;
    ProgramArguments arguments(argc, argv);
    while (arguments.Next()) {
        if (arguments.AsksForReply(kProgram, help, options.reply)) return true;
        if (arguments.Is("--redact")) {
            options.redact = true;
        } else if (arguments.IsOperand() && options.directory.empty()) {
            options.directory = arguments.Text();
        } else {
            return false;
        }
    }
    return !options.directory.empty();
}

// The functions that save the data of each device, in the order in which the devices are opened.
struct DeviceData {
    HealthDeviceIndex index;
    void (*save)(MachineCopy& copy);
};
constexpr DeviceData kDeviceData[] = {
    {kCdtDevice, SaveTables},
    {kCromDevice, SaveVariables},
    {kCasrDevice, SaveTimer},
    {kCevtDevice, SaveEvents},
};

// Saves a device. Returns false if the device can't be opened; the copy then has no directory for it.
bool SaveDevice(MachineCopy& copy, const DeviceData& data) {
    const HealthDevice& device = kHealthDevices[data.index];
    errno = 0;
    *device.descriptor = vxOpenRequest(device.path, kReadWrite);
    if (*device.descriptor < 0) {
        copy.ReportFailedCall(std::string("open ") + device.name, FailedResult());
        return false;
    }
    copy.CreateFolder(device.name);
    data.save(copy);
    vxCloseRequest(*device.descriptor);
    return true;
}

void Save(MachineCopy& copy) {
    bool useful = smbios_available != 0;
    for (const DeviceData& data : kDeviceData) useful |= SaveDevice(copy, data);
    if (!useful) throw std::runtime_error("no device opens and there are no tables: nothing to be saved");
    SaveFirmware(copy);
    SavePicl(copy);
}

}  // namespace

int main(int argc, char** argv) try {
    if (!KeepStandardDescriptors()) return 1;
    const int output = MessagesToStandardError();
    if (output < 0) return 1;
    IgnoreWriteSignals();
    umask(077);
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        WriteAll(STDERR_FILENO, kUsage);
        return 2;
    }
    if (!options.reply.empty()) return PrintReply(output, kProgram, options.reply);
    if (!CheckUser(kProgram) || !CheckRom(kProgram) || !ReadFirmwareTables(kProgram)) return 1;

    NoticeInterrupts();
    MachineCopy copy(options.directory, options.redact);
    Save(copy);
    copy.Finish();
    return 0;
} catch (...) {
    return ReportException(kProgram);
}
