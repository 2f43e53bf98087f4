// The firmware's settings in the words of their SHOW commands, which print what is read here. The functions
// themselves print nothing.
// Result of each: null, or the message that says what can't be read, and nothing is stored.
#pragma once

#include "include/rom_variables.h"

const char* ReadAsset(AssetText& asset);
const char* ReadServerName(ServerName& name);

// The automatic shutdown in an abnormal environment, Wake-On-Lan, hyper-threading.
const char* ReadShutdown(bool& enabled);
const char* ReadWakeOnLan(bool& enabled);
const char* ReadHyperThreading(bool& enabled);

const char* ReadF1Prompt(const char*& state);

struct BootOrder {
    int count;  // of the devices installed
    const char* device[sizeof ZTHIPLSTRUCT::ucPriority];
};
const char* ReadBootOrder(BootOrder& order);
const char* ReadBootOnce(const char*& device);  // "Not set" for none

constexpr int kNicBootStates = 10;  // as many NICs as SHOW NIC knows of
struct NicBootStates {
    const char* nic[kNicBootStates];
};
const char* ReadNicBoot(NicBootStates& states);

struct BiosSerialPort {
    const char* port;  // null: disabled
    const char* baud;
};
const char* ReadBiosSerialPort(BiosSerialPort& shown);

struct EmbeddedPorts {
    const char* port[2];  // A and B: a number, or disabled; null: unknown
};
const char* ReadEmbeddedPorts(EmbeddedPorts& ports);

// Only with the management processor.
const char* ReadVirtualPort(const char*& port);

struct ComponentVersion {
    const char* name;
    VERSION baseline;  // that the server came with
    VERSION current;
};
struct ComponentVersions {
    bool told;  // false: all numbers are 0
    ComponentVersion component[7];
};
const char* ReadVersions(ComponentVersions& versions);
