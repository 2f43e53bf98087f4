#include "tools/mkmachine/models.h"

#include "tools/mkmachine/events.h"

const std::vector<Model>& Models() {
    static const std::vector<Model> models = {
        {ModelId::Tr500k2, "tr500k2", "Corvex TR500 K2"},  // everything
        {ModelId::Tr300, "tr300", "Corvex TR300"},         // an ordinary server with an older driver
        {ModelId::Bx20, "bx20", "Corvex BX20"},            // a blade
    };
    return models;
}

const Model* FindModel(const std::string& name) {
    for (const Model& model : Models()) {
        if (name == model.name) return &model;
    }
    return nullptr;
}

void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events) {
    // What may be too large for memory comes first: nothing is left behind.
    const std::string log = EventLog(events ? *events : EveryEvent().size());

    MachineBuilder machine(directory);
    AddFans(machine, model.id);
    AddTemperatures(machine, model.id);
    AddPowerSupplies(machine, model.id);
    AddIndicators(machine, model.id);
    AddMemoryModules(machine, model.id);
    AddFirmware(machine, model);
    AddRomVariables(machine, model.id);
    machine.Write("cevt/hlog", log);
}
