#include "cli/misc-commands/asr.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include "cli/command/command.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/rom_store.h"
#include "include/health_records.h"
#include "platform/request.h"
#include "src/utils/text.h"

namespace {

constexpr RomVariable<ASREVSTRUCT> kTimeout = {kAsrVariable};
constexpr int kMinutes[] = {5, 10, 15, 20, 30};

int SwitchTimer(const InputLineType& line, bool enable) {
    if (line.NumWords != 2) return InvalidArguments();

    if (vxIoctlRequest(casr_fd, enable ? kEnableTimer : kDisableTimer, nullptr) != 0) {
        return Fail(enable ? "\nERROR: Failed to enable ASR." : "\nERROR: Failed to disable ASR.");
    }
    std::printf(enable ? "\nSuccessfully enabled ASR timer." : "\nSuccessfully disabled ASR timer.");
    return 0;
}

}  // namespace

AsrRead ReadAsrTimer(AsrTimer& timer) {
    int32_t enabled = 0;
    if (vxIoctlRequest(casr_fd, kTimerState, &enabled) != 0) return AsrRead::StateFailed;
    ASREVSTRUCT asr;
    if (!ReadVariable(kTimeout, asr)) return AsrRead::TimeoutFailed;
    timer = {enabled != 0, asr.ucTimeoutValue};
    return AsrRead::Done;
}

int do_show_asr(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    AsrTimer timer;
    switch (ReadAsrTimer(timer)) {
        case AsrRead::StateFailed: return Fail("\nERROR: Failed to get ASR enabled state.");
        case AsrRead::TimeoutFailed: return Fail("\nERROR: Failed to read ASR status.");
        case AsrRead::Done: break;
    }
    std::printf("\nASR timeout is %d minutes.", timer.minutes);
    std::printf("\nASR is currently %s.", EnabledOrDisabled(timer.enabled));
    return 0;
}

int do_set_asr(InputLineType* InputLine) {
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) {
        std::printf("\nERROR: You must provide an ASR timeout value in minutes.");
        return ShowUsage();
    }
    const int minutes = DecimalNumber(InputLine->Words[2]);
    if (std::find(std::begin(kMinutes), std::end(kMinutes), minutes) == std::end(kMinutes)) {
        return Fail("\nERROR: Timeout must be 5, 10, 15, 20 or 30 minutes.");
    }

    ASREVSTRUCT asr;
    if (!ReadVariable(kTimeout, asr)) return Fail("\nERROR: Failed to read ASR status.");
    asr.ucTimeoutValue = static_cast<uint8_t>(minutes);
    if (!WriteVariable(kTimeout, asr)) return Fail("\nERROR: Failed to set ASR timeout.");
    std::printf("\nSuccessfully set ASR timeout to %d minutes.", minutes);
    return 0;
}

int do_enable_asr(InputLineType* InputLine) {
    return SwitchTimer(*InputLine, true);
}

int do_disable_asr(InputLineType* InputLine) {
    return SwitchTimer(*InputLine, false);
}
