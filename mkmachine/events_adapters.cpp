#include "mkmachine/events_adapters.h"

namespace {

// The server itself (number 0), an external chassis without a name, and one with a name. The texts of these
// events don't depend on the chassis type, so the types here are unusual ones.
constexpr SampleChassis kChassis[] = {
    {{kChassisInternalStorage, 0, 8}, "SELF"},
    {{kChassisExternalStorage, 3, 8}, ""},
    {{kChassisBladeEnclosure, 3, 8}, "EXP1"},
};

// Adds an event whose record contains a chassis, a slot or bay, and the chassis name.
template <typename Record>
void Add(SampleEvents& events, uint16_t event_class, uint16_t code, uint8_t slot, const char* extra = "") {
    for (const SampleChassis& at : kChassis) {
        events.push_back(
            {kCaution, event_class, code, WithTexts(Record{at.chassis, slot, {}}, {at.name, extra})});
    }
}

template <typename Record>
void AddNotRedundant(SampleEvents& events, uint16_t event_class, uint16_t code) {
    for (const SampleChassis& at : kChassis) {
        events.push_back({kCaution, event_class, code, WithTexts(Record{at.chassis, {}}, {at.name})});
    }
}

}  // namespace

void AddAdapterEvents(SampleEvents& events) {
    Add<EVT_NIC_ERROR>(events, 17, 1, 11, "not of this event");
    Add<EVT_NIC_ERROR>(events, 17, 2, 12);
    Add<EVT_NIC_ERROR>(events, 17, 3, 13);
    Add<EVT_NICS_NOT_REDUNDANT>(events, 17, 4, 14);
    Add<EVT_NIC_ERROR>(events, 17, 5, 15);
    Add<EVT_NIC_ERROR>(events, 17, 6, 16, "Cable out");
    Add<EVT_NIC_ERROR>(events, 17, 7, 17, "Team 1");

    Add<EVT_SCSI_CTRL_FAILURE>(events, 18, 1, 18);
    Add<EVT_SCSI_DEVICE_FAILURE>(events, 18, 2, 19);
    AddNotRedundant<EVT_SCSI_CTRLS_NOT_REDUNDANT>(events, 18, 3);

    Add<EVT_ARRAY_CTRL_FAILURE>(events, 19, 1, 20);
    Add<EVT_ARRAY_DEV_FAILURE>(events, 19, 2, 21);
    Add<EVT_ARRAY_ACCEL_FAILURE>(events, 19, 3, 22);
    AddNotRedundant<EVT_ARRAY_CTRLS_NOT_REDUNDANT>(events, 19, 4);
    events.push_back(
        {kCritical, 19, 7,
         WithTexts(EVT_SAS_ARRAY_DEV_FAILURE{InternalStorage(255), 23, {'6', 'F'}, 11, {}}, {"ARRAY4", ""})});
    events.push_back({kCritical, 19, 8,
                      WithTexts(EVT_SAS_ARRAY_PHY_ERROR{ExternalStorage(4), {'7', 'G'}, 12, 24, 25, {}},
                                {"ARRAY3", "Rear"})});
}
