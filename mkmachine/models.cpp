#include "mkmachine/models.h"

#include "mkmachine/events.h"

const std::vector<Model>& Models() {
    static const std::vector<Model> models = {kTr500k2, kTr300, kBx20};
    return models;
}

const Model* FindModel(const std::string& name) {
    for (const Model& model : Models()) {
        if (name == model.name) return &model;
    }
    return nullptr;
}

SmbiosTable TablesOf(const Model& model) {
    return TablesOf(model.product_name, model.hardware);
}

void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events) {
    // The log is built first, so that the directory doesn't change if memory runs out.
    const std::string log = EventLog(events ? *events : EveryEvent().size());

    MachineBuilder machine(directory);
    AddFans(machine, model.fans);
    AddTemperatures(machine, model.sensors);
    AddPowerSupplies(machine, model.supplies);
    AddIndicators(machine, model.uid);
    AddMemoryModules(machine, model.memory);
    AddRomSignature(machine);
    AddTables(machine, TablesOf(model));
    AddPicl(machine, model.kelm);
    AddRomSettings(machine, model.settings);
    machine.Write("cevt/hlog", log);
}
