// The common commands of IEEE 488.2.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {

using scpi::Call;
using scpi::kNothing;
using scpi::kOne;

void AddCommon(scpi::Commands& commands, Instrument& instrument) {
  scpi::Status& status = instrument.status();
  const auto mask = [](Call& call) { return static_cast<std::uint8_t>(call.Integer(0, 255, 0)); };

  commands.Ask("*IDN", kNothing, [&instrument](Call& call) {
    const Identity& identity = instrument.identity();
    call.answer.Plain("Kelvora");
    call.answer.Plain(identity.variant.name);
    call.answer.Plain(identity.serial);
    call.answer.Plain(instrument.firmware().version());
  });
  commands.Do("*CLS", kNothing, [&instrument](Call&) {
    instrument.ForgetOperationComplete();
    instrument.status().Clear();
  });
  commands.Do("*ESE", kOne, [&status, mask](Call& call) { status.standard_enable = mask(call); });
  commands.Ask("*ESE", kNothing, [&status](Call& call) { call.answer.Integer(status.standard_enable); });
  commands.Ask("*ESR", kNothing, [&status](Call& call) { call.answer.Integer(status.TakeStandardEvent()); });
  commands.Do("*SRE", kOne,
              [&status, mask](Call& call) { status.service_enable = static_cast<std::uint8_t>(mask(call) & ~0x40U); });
  commands.Ask("*SRE", kNothing, [&status](Call& call) { call.answer.Integer(status.service_enable); });
  commands.Ask("*STB", kNothing, [&status](Call& call) { call.answer.Integer(status.Byte(!call.answer.empty())); });

  commands.Do("*OPC", kNothing, [&instrument](Call&) { instrument.NoteOperationComplete(); });
  commands.Ask("*OPC", kNothing, [&instrument](Call& call) {
    if (instrument.operations_pending()) throw scpi::Wait();
    call.answer.Integer(1);
  });
  commands.Do("*WAI", kNothing, [&instrument](Call&) {
    if (instrument.operations_pending()) throw scpi::Wait();
  });

  commands.Do("*TRG", kNothing, [&instrument](Call&) { instrument.generator().sweep.BusTrigger(); });
  commands.Do("*RST", kNothing, [&instrument](Call&) { instrument.Reset(); });
  commands.Ask("*TST", kNothing, [](Call& call) { call.answer.Integer(0); });
  commands.Ask("*OPT", kNothing, [](Call& call) { call.answer.Plain(kOptions); });

  const auto place = [](Call& call) {
    return static_cast<std::size_t>(call.Integer(0, Instrument::kSaveRegisters - 1, 0));
  };
  commands.Do("*SAV", kOne, [&instrument, place](Call& call) { instrument.Save(place(call)); });
  commands.Do("*RCL", kOne, [&instrument, place](Call& call) { instrument.Recall(place(call)); });
}

}  // namespace siggen::model
