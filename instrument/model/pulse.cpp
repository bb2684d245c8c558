// :PULM, the pulse modulator, :PULSe, its generator, and :TRIGger:SEQuence3, that generator's trigger.
#include "model/bind.h"
#include "model/generator.h"
#include "model/limits.h"
#include "model/modulation.h"
#include "model/modulation_words.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;

constexpr scpi::Word<Polarity> kPolarities[] = {{"NORMal", Polarity::kNormal}, {"INVerted", Polarity::kInverted}};
constexpr scpi::Word<Slope> kSlopes[] = {{"POSitive", Slope::kPositive}, {"NEGative", Slope::kNegative}};
constexpr scpi::Word<PulseTrigger> kTriggers[] = {
    {"FREerun", PulseTrigger::kFreeRun},         {"GATed", PulseTrigger::kGated},
    {"DELayed", PulseTrigger::kDelayed},         {"TRIGgered", PulseTrigger::kTriggered},
    {"TRGDelay", PulseTrigger::kTriggerDelayed}, {"COMPosite", PulseTrigger::kComposite},
};

constexpr Limits kWidth{0.0, 1000.0, 1e-4};
constexpr Limits kDelay{0.0, 1000.0, 0.0};

// Four numbered settings of the train.
void AddSlots(Commands& commands, std::string_view pattern, Limits limits, std::array<double, 4>& slots) {
  commands.Do(pattern, scpi::kOne, [limits, &slots](Call& call) {
    const double value = call.Real(Quantity::kTime, limits);
    slots[static_cast<std::size_t>(call.suffix() - 1)] = value;
  });
  commands.Ask(pattern, {0, 1}, [limits, &slots](Call& call) {
    AnswerReal(call, Quantity::kTime, slots[static_cast<std::size_t>(call.suffix() - 1)], limits);
  });
}

}  // namespace

void AddPulse(Commands& commands, Generator& generator) {
  PulseSettings& pulse = generator.now.pulse;

  BindBoolean(commands, "PULM:STATe", pulse.on);
  BindChoice(commands, "PULM:SOURce", kModulationSources, pulse.source);
  BindChoice(commands, "PULM:POLarity", kPolarities, pulse.polarity);
  commands.Ask("PULM:ERRor", scpi::kNothing,
               [&generator](Call& call) { call.answer.Boolean(PulseError(generator.now)); });
  // The frequency is the period seen from the other side.
  BindReal(
      commands, "PULM:FREQuency",
      {Quantity::kFrequency,
       [] {
         return Limits{1.0 / kPulsePeriodLimits.most, 1.0 / kPulsePeriodLimits.least, 1.0 / kPulsePeriodLimits.usual};
       },
       [&pulse] { return 1.0 / pulse.period; },
       [&pulse](double value) { pulse.period = 1.0 / value; },
       {}});

  BindReal(commands, "PULSe:PERiod", Quantity::kTime, kPulsePeriodLimits, pulse.period);
  BindInteger(commands, "PULSe:COUNt", 1, kMostPulses, 1, pulse.count);
  AddSlots(commands, "PULSe:WIDTh<1-4>", kWidth, pulse.widths);
  AddSlots(commands, "PULSe:DELay<1-4>", kDelay, pulse.delays);

  BindChoice(commands, "TRIGger:SEQuence<3>:TYPE", kTriggers, pulse.trigger);
  BindChoice(commands, "TRIGger:SEQuence<3>:SLOPe", kSlopes, pulse.slope);
}

}  // namespace siggen::model
