#include "cli/misc-commands/uid.h"

#include <cstdio>
#include <memory>
#include <new>

#include "cli/command/command.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "include/health_records.h"
#include "platform/request.h"
#include "src/utils/text.h"

namespace {

constexpr CodeText kStates[] = {
    {kIndicatorOff, "off"},
    {kIndicatorOn, "on"},
    {kIndicatorBlinking, "blinking"},
};

// Allocates a cleared reply buffer. Returns null if memory runs out.
std::unique_ptr<INDCBASIC> NewReply() {
    return std::unique_ptr<INDCBASIC>(new (std::nothrow) INDCBASIC{});
}

}  // namespace

int ControlLight(IndicatorSubfunction subfunction, INDCBASIC& reply) {
    DT_IOCTL request{};
    request.DtHdr.size = sizeof reply;
    request.DtHdr.DT_Type = kIndicatorControlTable;
    request.DtHdr.CRUFunction = kIndicatorControl;
    request.DtHdr.CRUSubfunction = subfunction;
    request.pData = &reply;
    return vxIoctlRequest(cdt_fd, kDataTableRequest, &request);
}

LightRead ReadLight(const char*& state) {
    const auto reply = NewReply();
    if (!reply) return LightRead::NoMemory;
    if (ControlLight(kReportState, *reply) != 0) return LightRead::Failed;
    state = TextOfCode(kStates, reply->ucCurrState, "in an unknown state");
    return LightRead::Done;
}

int do_show_uid(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const char* state = nullptr;
    switch (ReadLight(state)) {
        case LightRead::NoMemory: return Fail("\nERROR: Could not allocate memory for \"SHOW UID\" command.");
        case LightRead::Failed: return Fail("\nERROR: \"SHOW UID\" command failed.");
        case LightRead::Done: break;
    }
    std::printf("\nUID is currently %s.", state);
    return 0;
}

int do_set_uid(InputLineType* InputLine) {
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* const word = InputLine->Words[2];
    const bool on = StartsWith(word, "ON");
    if (!on && !StartsWith(word, "OFF")) return InvalidArguments();

    {
        const Reply<INDCHEADER> header(kIndicatorHeaderTable, 0);
        if (!header) return Fail("\nERROR: \"SET UID\" command failed.");
        if (header->ucNumSupportedByChassis == 0 || header->ucDataAvailable == 0) {
            return Fail("\nERROR: This server does not support the SET UID command.");
        }
    }

    {
        const auto reply = NewReply();
        if (!reply) return Fail("\nERROR: Could not allocate memory for \"SET UID\" command.");
        // Ignores the result: SHOW UID shows whether the light has changed.
        ControlLight(on ? kTurnOn : kTurnOff, *reply);
    }
    std::printf("\nUID is now %s.", on ? "on" : "off");
    return 0;
}
