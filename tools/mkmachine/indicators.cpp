// The driver's record of the unit identification light.
#include "tools/mkmachine/facts.h"

void AddIndicators(MachineBuilder& machine, IndicatorState uid) {
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 1, 1});

    INDCBASIC light{};
    light.ucDataAvailable = 1;
    light.ucCurrState = uid;
    light.IndcDescriptor.s1.bit_SWCtrl = 1;
    machine.Table(kIndicatorControlTable, 0, 0, light);
}
