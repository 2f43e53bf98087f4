// The machines that mkmachine knows how to make.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/mkmachine/machine_builder.h"

enum class ModelId { Tr500k2, Tr300, Bx20 };

struct Model {
    ModelId id;
    const char* name;          // as --model takes it
    const char* product_name;  // as SMBIOS gives it
};

// All of them; the first is the default.
const std::vector<Model>& Models();

// The model of a name; null when there is none.
const Model* FindModel(const std::string& name);

// Builds a model's whole machine in a directory that is empty or doesn't exist. events: the entries of its
// event log, else one of each. Throws std::system_error.
void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events = {});

// The families of facts, a file each.
void AddFans(MachineBuilder& machine, ModelId model);
void AddTemperatures(MachineBuilder& machine, ModelId model);
void AddPowerSupplies(MachineBuilder& machine, ModelId model);
void AddIndicators(MachineBuilder& machine, ModelId model);
void AddMemoryModules(MachineBuilder& machine, ModelId model);
void AddFirmware(MachineBuilder& machine, const Model& model);
void AddRomVariables(MachineBuilder& machine, ModelId model);  // and the recovery timer's state
