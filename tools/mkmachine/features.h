// The common feature record of a fan, a temperature sensor or a power supply.
#pragma once

#include "include/data_tables.h"

enum State : unsigned { kAbsent = 0, kPresent = 1, kFailed = 2, kRedundant = 4 };  // DEVICE_STATE_FLAGS

constexpr auto kUnnamedZone = static_cast<ZoneType>(12);  // none that the driver's interface names

// index: the device's within its family, from -1. state: bits of State. instance: of the zone, 0 to 31.
inline COMMONFEATUREINFO Feature(int index, unsigned state, ZoneType zone, unsigned instance = 0) {
    COMMONFEATUREINFO feature{};
    feature.ucDataAvailable = 1;
    feature.DeviceState.usDeviceState = static_cast<uint16_t>(state);
    feature.ucId = static_cast<uint8_t>(index + 1);
    feature.Location.s1.bits_ZoneType = zone & 31u;
    feature.Location.s1.bits_InstanceOfZoneType = instance & 31;
    return feature;
}
