// Words that several modulators share.
#pragma once

#include "model/settings.h"
#include "scpi/words.h"

namespace siggen::model {

inline constexpr scpi::Word<ModulationSource> kModulationSources[] = {{"INTernal", ModulationSource::kInternal},
                                                                      {"EXTernal", ModulationSource::kExternal}};

inline constexpr scpi::Word<Waveform> kWaveforms[] = {
    {"SINE", Waveform::kSine},       {"GAUSsian", Waveform::kGaussian}, {"RDOWn", Waveform::kRampDown},
    {"RUP", Waveform::kRampUp},      {"SQUare", Waveform::kSquare},     {"TRIangle", Waveform::kTriangle},
    {"UNIForm", Waveform::kUniform},
};

}  // namespace siggen::model
