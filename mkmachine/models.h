// The list of models, and the simulated machines that are created from them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "mkmachine/model.h"
#include "mkmachine/models/bx20.h"
#include "mkmachine/models/tr300.h"
#include "mkmachine/models/tr500k2.h"

// Returns all models; the first one is the default.
const std::vector<Model>& Models();

// Returns the model with the name `name`, or null if there is none.
const Model* FindModel(const std::string& name);

// Returns a model's SMBIOS tables.
SmbiosTable TablesOf(const Model& model);

// Creates a machine of a model in a directory that is empty or doesn't exist. `events` is the number of
// entries in the event log; by default there is one for each sample event. Throws std::system_error.
void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events = {});
