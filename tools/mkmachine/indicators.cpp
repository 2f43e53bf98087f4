#include "include/indicator_records.h"
#include "tools/mkmachine/models.h"

namespace {

IndicatorState UidOf(ModelId model) {
    switch (model) {
        case ModelId::Tr500k2: return kIndicatorOff;
        case ModelId::Tr300: return kIndicatorOn;
        default: return kIndicatorBlinking;
    }
}

}  // namespace

void AddIndicators(MachineBuilder& machine, ModelId model) {
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 1, 1});

    INDCBASIC light{};
    light.ucDataAvailable = 1;
    light.ucCurrState = UidOf(model);
    light.IndcDescriptor.s1.bit_SWCtrl = 1;
    machine.Table(kIndicatorControlTable, 0, 0, light);
}
