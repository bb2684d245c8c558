// :AM, :FM and :PM.
#include <string>

#include "model/bind.h"
#include "model/generator.h"
#include "model/modulation.h"
#include "model/modulation_words.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;

constexpr scpi::Word<bool> kAmTypes[] = {{"LINear", false}, {"LOGarithmic", true}};
constexpr scpi::Word<FmMode> kFmModes[] = {{"LOCKed", FmMode::kLocked}, {"UNLocked", FmMode::kUnlocked}};
constexpr scpi::Word<FmFilter> kFmFilters[] = {
    {"DC", FmFilter::kDc}, {"HP63", FmFilter::kHp63}, {"HP1K", FmFilter::kHp1k}};
constexpr scpi::Word<PmBandwidth> kPmBandwidths[] = {{"MINimum", PmBandwidth::kMinimum},
                                                     {"MAXimum", PmBandwidth::kMaximum}};

constexpr Limits kDepth{0.0, 100.0, 30.0};
constexpr Limits kDepthDb{0.0, 25.0, 3.0};
constexpr Limits kFrequencyDeviation{0.0, 10e6, 100e3};
constexpr Limits kPhaseDeviation{0.0, 400.0, 1.0};
constexpr Limits kRate{0.1, 1e6, 1e3};

// What the three trees have in common.
void AddModulation(Commands& commands, const std::string& tree, ModulationSettings& modulation) {
  BindBoolean(commands, tree + ":STATe", modulation.on);
  BindChoice(commands, tree + ":SOURce", kModulationSources, modulation.source);
  BindChoice(commands, tree + ":WAVEform", kWaveforms, modulation.waveform);
  BindReal(commands, tree + ":FREQuency", Quantity::kFrequency, kRate, modulation.rate);
}

void AddError(Commands& commands, const std::string& tree, Generator& generator, bool (*error)(const Settings&)) {
  commands.Ask(tree + ":ERRor", scpi::kNothing,
               [&generator, error](Call& call) { call.answer.Boolean(error(generator.now)); });
}

}  // namespace

void AddAm(Commands& commands, Generator& generator) {
  AmSettings& am = generator.now.am;
  AddModulation(commands, "AM", am);
  AddError(commands, "AM", generator, AmError);
  BindChoice(commands, "AM:TYPE", kAmTypes, am.logarithmic);
  BindReal(commands, "AM:DEPTh", Quantity::kPercent, kDepth, am.size);
  BindReal(commands, "AM:SENSitivity", Quantity::kPercent, kDepth, am.sensitivity);
  BindReal(commands, "AM:LOGDepth", Quantity::kRatio, kDepthDb, am.size_db);
  BindReal(commands, "AM:LOGSens", Quantity::kRatio, kDepthDb, am.sensitivity_db);
}

void AddFm(Commands& commands, Generator& generator) {
  FmSettings& fm = generator.now.fm;
  AddModulation(commands, "FM", fm);
  AddError(commands, "FM", generator, FmPmError);
  BindChoice(commands, "FM:MODE", kFmModes, fm.mode);
  BindChoice(commands, "FM:HFILter", kFmFilters, fm.filter);
  BindReal(commands, "FM:DEViation", Quantity::kFrequency, kFrequencyDeviation, fm.size);
  BindReal(commands, "FM:SENSitivity", Quantity::kFrequency, kFrequencyDeviation, fm.sensitivity);
}

void AddPm(Commands& commands, Generator& generator) {
  PmSettings& pm = generator.now.pm;
  AddModulation(commands, "PM", pm);
  AddError(commands, "PM", generator, FmPmError);
  BindChoice(commands, "PM:BWIDth", kPmBandwidths, pm.bandwidth);
  BindReal(commands, "PM:DEViation", Quantity::kAngle, kPhaseDeviation, pm.size);
  BindReal(commands, "PM:SENSitivity", Quantity::kAngle, kPhaseDeviation, pm.sensitivity);
}

}  // namespace siggen::model
