// The machines that mkmachine knows how to make, each in its file of models/.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/mkmachine/facts.h"

struct Model {
    const char* name;          // as --model takes it
    const char* product_name;  // as SMBIOS gives it
    std::vector<Fan> fans;
    std::vector<Sensor> sensors;
    std::vector<Supply> supplies;
    IndicatorState uid;
    DriverMemory memory;
    Hardware hardware;
    RomSettings settings;
    Kelm kelm;
};

extern const Model kTr500k2;
extern const Model kTr300;
extern const Model kBx20;

// All of them; the first is the default.
const std::vector<Model>& Models();

// The model of a name; null when there is none.
const Model* FindModel(const std::string& name);

// A model's SMBIOS tables.
SmbiosTable TablesOf(const Model& model);

// Builds a model's whole machine in a directory that is empty or doesn't exist. events: the entries of its
// event log, else one of each sample. Throws std::system_error.
void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events = {});
