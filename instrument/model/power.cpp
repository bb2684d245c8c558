// :POWer, the level, its presets, leveling, attenuator, limit and display offset, and the range of the power sweep.
#include <algorithm>

#include "model/bind.h"
#include "model/generator.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;

// The power sweep is the second sweep of the instrument.
constexpr scpi::Word<Drive> kDrives[] = {
    {"FIXed", Drive::kFixed}, {"CW", Drive::kFixed},      {"SWEep2", Drive::kSweep}, {"LIST1", Drive::kList1},
    {"LIST", Drive::kList1},  {"LIST2", Drive::kList2},   {"LIST3", Drive::kList3},  {"LIST4", Drive::kList4},
    {"LIST5", Drive::kList5}, {"LIST6", Drive::kList6},   {"LIST7", Drive::kList7},  {"LIST8", Drive::kList8},
    {"LIST9", Drive::kList9}, {"LIST10", Drive::kList10},
};

constexpr scpi::Word<int> kPresets[] = {{"L0", 0}, {"L1", 1}, {"L2", 2}, {"L3", 3}, {"L4", 4},
                                        {"L5", 5}, {"L6", 6}, {"L7", 7}, {"L8", 8}, {"L9", 9}};

constexpr scpi::Word<LevelingSource> kLevelingSources[] = {
    {"INTernal", LevelingSource::kInternal}, {"FIXed", LevelingSource::kFixed},
    {"DIODe", LevelingSource::kDiode},       {"DIODe1", LevelingSource::kDiode},
    {"PMETer", LevelingSource::kPowerMeter}, {"PMETer1", LevelingSource::kPowerMeter},
};

constexpr scpi::Word<AttenuatorRange> kRanges[] = {{"HIGH", AttenuatorRange::kHigh}, {"LOW", AttenuatorRange::kLow}};

constexpr Limits PowerLimits(double usual) { return {kLowestPower, kHighestPower, usual}; }

void AddLevel(Commands& commands, Generator& generator) {
  PowerSettings& power = generator.now.power;

  BindReal(commands, "POWer[:LEVel]",
           {Quantity::kPower,
            [&generator] {
              const double offset = generator.shown_offset();
              return Limits{kLowestPower + offset, generator.highest_level() + offset, -20.0 + offset};
            },
            [&generator] { return generator.now.power.level + generator.shown_offset(); },
            [&generator](double value) { generator.now.power.level = value - generator.shown_offset(); },
            [&power] { return power.step; }});
  BindChoice(commands, "POWer:MODE", kDrives, power.drive,
             std::function<void(Drive)>([&generator](Drive) { generator.sweep.DriveChanged(); }));
  BindReal(commands, "POWer:STEP", Quantity::kRatio, {0.001, kHighestPower - kLowestPower, 1.0}, power.step);

  commands.Do("POWer:L<0-9>", scpi::kOne, [&power](Call& call) {
    const double value = call.Real(Quantity::kPower, PowerLimits(-20.0));
    power.presets[static_cast<std::size_t>(call.suffix())] = value;
  });
  commands.Ask("POWer:L<0-9>", {0, 1}, [&power](Call& call) {
    AnswerReal(call, Quantity::kPower, power.presets[static_cast<std::size_t>(call.suffix())], PowerLimits(-20.0));
  });
  // Choosing a preset recalls it into the level, as far as the power limit lets it.
  BindChoice(commands, "POWer:SELect", kPresets, power.selected, std::function<void(int)>([&generator](int preset) {
               const double level = generator.now.power.presets[static_cast<std::size_t>(preset)];
               generator.now.power.level = std::min(level, generator.highest_level());
             }));
}

void AddAround(Commands& commands, Generator& generator) {
  PowerSettings& power = generator.now.power;

  BindChoice(commands, "POWer:RANGe", kRanges, power.range);
  BindInteger(commands, "POWer:DAC", 0, 4095, 2048, power.dac);
  BindReal(commands, "POWer:ATTenuation",
           {Quantity::kRatio,
            [] {
              return Limits{0.0, 120.0, 20.0};
            },
            [&generator] { return generator.attenuation(); },
            [&power](double value) {
              power.attenuation = value;
              power.attenuator_auto = false;
            },
            {}});
  commands.Do("POWer:ATTenuation:AUTO", scpi::kOne, [&generator](Call& call) {
    const bool automatic = call.Boolean();
    generator.now.power.attenuation = generator.attenuation();  // by hand it goes on from where it stands
    generator.now.power.attenuator_auto = automatic;
  });
  commands.Ask("POWer:ATTenuation:AUTO", scpi::kNothing,
               [&power](Call& call) { call.answer.Boolean(power.attenuator_auto); });

  BindReal(commands, "POWer:DISPlay:OFFSet", Quantity::kRatio, {-100.0, 100.0, 0.0}, power.offset);
  BindBoolean(commands, "POWer:DISPlay:OFFSet:STATe", power.offset_on);

  // A limit below the level takes the level down with it.
  const auto obey_limit = [&generator] {
    generator.now.power.level = std::min(generator.now.power.level, generator.highest_level());
  };
  BindReal(commands, "POWer:LIMit",
           {Quantity::kPower,
            [] { return PowerLimits(kHighestPower); },
            [&power] { return power.limit; },
            [&power, obey_limit](double value) {
              power.limit = value;
              obey_limit();
            },
            {}});
  commands.Do("POWer:LIMit:STATe", scpi::kOne, [&power, obey_limit](Call& call) {
    power.limit_on = call.Boolean();
    obey_limit();
  });
  commands.Ask("POWer:LIMit:STATe", scpi::kNothing, [&power](Call& call) { call.answer.Boolean(power.limit_on); });

  commands.Ask("POWer:PROTection:TRIPped", scpi::kNothing,
               [&generator](Call& call) { call.answer.Boolean(generator.protection_tripped()); });
  commands.Do("POWer:PROTection:CLEar", scpi::kNothing, [&generator](Call&) { generator.ClearProtection(); });
  BindChoice(commands, "POWer:ALC:SOURce", kLevelingSources, power.leveling);
  // Finds the attenuation with the lowest noise floor for the present level and stays there.
  commands.Do("POWer:ALC:SEARch:LNOise", scpi::kNothing, [&power](Call&) {
    power.attenuator_auto = false;
    power.attenuation = std::clamp(kHighestPower - power.level, 0.0, 120.0);
  });
}

void AddRange(Commands& commands, Generator& generator) {
  PowerSettings& power = generator.now.power;

  BindReal(commands, "POWer:STARt", Quantity::kPower, PowerLimits(kLowestPower), power.start);
  BindReal(commands, "POWer:STOP", Quantity::kPower, PowerLimits(kHighestPower), power.stop);

  const auto set_range = [&power](double center, double span) {
    power.start = center - span / 2.0;
    power.stop = center + span / 2.0;
  };
  const auto room = [](double center) { return 2.0 * std::min(center - kLowestPower, kHighestPower - center); };
  const auto center = [&power] { return (power.start + power.stop) / 2.0; };
  const auto span = [&power] { return power.stop - power.start; };

  BindReal(commands, "POWer:CENTer",
           {Quantity::kPower,
            [] { return PowerLimits((kLowestPower + kHighestPower) / 2.0); },
            center,
            [=](double value) { set_range(value, std::clamp(span(), -room(value), room(value))); },
            {}});
  BindReal(commands, "POWer:SPAN",
           {Quantity::kRatio,
            [=] {
              return Limits{0.0, room(center()), kHighestPower - kLowestPower};
            },
            span,
            [=](double value) { set_range(center(), value); },
            {}});
  commands.Do("POWer:SPAN:FULL", scpi::kNothing, [&power](Call&) {
    power.start = kLowestPower;
    power.stop = kHighestPower;
  });
}

}  // namespace

void AddPower(Commands& commands, Generator& generator) {
  AddLevel(commands, generator);
  AddAround(commands, generator);
  AddRange(commands, generator);
}

}  // namespace siggen::model
