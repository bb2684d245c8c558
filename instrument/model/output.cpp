// :OUTPut and :UNIT.
#include "model/bind.h"
#include "model/generator.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

constexpr scpi::Word<scpi::PowerUnit> kPowerUnits[] = {
    {"DBM", scpi::PowerUnit::kDbm}, {"DBUV", scpi::PowerUnit::kDbuv}, {"V", scpi::PowerUnit::kVolt}};

constexpr scpi::Word<scpi::TimeUnit> kTimeUnits[] = {{"S", scpi::TimeUnit::kSecond},
                                                     {"MS", scpi::TimeUnit::kMillisecond},
                                                     {"US", scpi::TimeUnit::kMicrosecond},
                                                     {"NS", scpi::TimeUnit::kNanosecond}};

constexpr double kImpedance = 50.0;

}  // namespace

void AddOutput(scpi::Commands& commands, Generator& generator) {
  OutputSettings& output = generator.now.output;
  commands.Do("OUTPut[:STATe]", scpi::kOne, [&generator](scpi::Call& call) {
    const bool on = call.Boolean();
    if (on && generator.protection_tripped()) throw scpi::Refusal(scpi::Error::kSettingsConflict, "Protection tripped");
    generator.now.output.on = on;
  });
  commands.Ask("OUTPut[:STATe]", scpi::kNothing, [&output](scpi::Call& call) { call.answer.Boolean(output.on); });
  BindBoolean(commands, "OUTPut:PROTection[:STATe]", output.blanking);
  commands.Ask("OUTPut:IMPedance", scpi::kNothing, [](scpi::Call& call) { call.answer.Real(kImpedance); });
}

void AddUnit(scpi::Commands& commands, Generator& generator) {
  BindChoice(commands, "UNIT:POWer", kPowerUnits, generator.now.units.power);
  BindChoice(commands, "UNIT:TIME", kTimeUnits, generator.now.units.time);
}

}  // namespace siggen::model
