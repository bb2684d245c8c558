// :TRIGger, :INITiate and :ABORt, the trigger system of sweeps and lists.
#include "model/bind.h"
#include "model/generator.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::kNothing;

constexpr scpi::Word<TriggerType> kTypes[] = {
    {"AUTO", TriggerType::kAuto},     {"SINGle", TriggerType::kSingle},     {"EXTernal", TriggerType::kExternal},
    {"MANual", TriggerType::kManual}, {"INACtive", TriggerType::kInactive},
};
constexpr scpi::Word<TriggerMode> kModes[] = {{"SWEep", TriggerMode::kSweep}, {"POINt", TriggerMode::kPoint}};
constexpr scpi::Word<TriggerSource> kSources[] = {
    {"BUS", TriggerSource::kBus}, {"IMMediate", TriggerSource::kImmediate}, {"EXTernal", TriggerSource::kExternal}};

}  // namespace

void AddTrigger(scpi::Commands& commands, Generator& generator) {
  TriggerSettings& trigger = generator.now.trigger;
  SweepEngine& sweep = generator.sweep;
  const auto changed = [&sweep](auto) { sweep.TriggerChanged(); };

  commands.Do("TRIGger[:SEQuence<1>][:IMMediate]", kNothing, [&sweep](Call&) { sweep.SoftwareTrigger(); });
  BindChoice(commands, "TRIGger[:SEQuence<1>]:TYPE", kTypes, trigger.type, std::function<void(TriggerType)>(changed));
  BindChoice(commands, "TRIGger[:SEQuence<1>]:MODE", kModes, trigger.mode, std::function<void(TriggerMode)>(changed));
  BindChoice(commands, "TRIGger[:SEQuence<1>]:SOURce", kSources, trigger.source,
             std::function<void(TriggerSource)>(changed));

  commands.Do("INITiate[:IMMediate]", kNothing, [&sweep](Call&) { sweep.Initiate(); });
  commands.Do("INITiate:CONTinuous", scpi::kOne, [&trigger, &sweep](Call& call) {
    trigger.continuous = call.Boolean();
    sweep.ContinuousChanged();
  });
  commands.Ask("INITiate:CONTinuous", kNothing, [&trigger](Call& call) { call.answer.Boolean(trigger.continuous); });
  commands.Do("ABORt", kNothing, [&sweep](Call&) { sweep.Abort(); });
}

}  // namespace siggen::model
