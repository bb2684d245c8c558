// One function per subsystem of the command set, each in a file of its name.
#pragma once

#include "scpi/commands.h"

namespace siggen::scpi {
class Status;
}

namespace siggen::model {

class Generator;
class Instrument;
struct NetworkSettings;

void AddCommon(scpi::Commands& commands, Instrument& instrument);
void AddFrequency(scpi::Commands& commands, Generator& generator);
void AddPower(scpi::Commands& commands, Generator& generator);
void AddOutput(scpi::Commands& commands, Generator& generator);
void AddUnit(scpi::Commands& commands, Generator& generator);
void AddAm(scpi::Commands& commands, Generator& generator);
void AddFm(scpi::Commands& commands, Generator& generator);
void AddPm(scpi::Commands& commands, Generator& generator);
void AddPulse(scpi::Commands& commands, Generator& generator);
void AddSweep(scpi::Commands& commands, Generator& generator);
void AddList(scpi::Commands& commands, Generator& generator);
void AddTrigger(scpi::Commands& commands, Generator& generator);
void AddMeasure(scpi::Commands& commands, Generator& generator);
void AddStatus(scpi::Commands& commands, scpi::Status& status);
void AddSystem(scpi::Commands& commands, Instrument& instrument);
void AddTime(scpi::Commands& commands, Instrument& instrument);
void AddNetwork(scpi::Commands& commands, NetworkSettings& network);
void AddFirmware(scpi::Commands& commands, Instrument& instrument);
void AddReference(scpi::Commands& commands, Instrument& instrument);
void AddDiagnostics(scpi::Commands& commands, Instrument& instrument);
void AddMassMemory(scpi::Commands& commands, Instrument& instrument);

}  // namespace siggen::model
