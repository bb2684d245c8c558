// :STATus, the operation and questionable registers.
#include "model/trees.h"
#include "scpi/status.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::StatusRegister;

void AddMask(scpi::Commands& commands, const std::string& pattern, std::uint16_t& mask) {
  commands.Do(pattern, scpi::kOne, [&mask](Call& call) {
    // Sixteen bits may be sent; the highest is never used.
    mask = static_cast<std::uint16_t>(call.Integer(0, 0xFFFF, 0) & StatusRegister::kAllBits);
  });
  commands.Ask(pattern, scpi::kNothing, [&mask](Call& call) { call.answer.Integer(mask); });
}

void AddRegister(scpi::Commands& commands, const std::string& name, StatusRegister& reg) {
  commands.Ask(name + "[:EVENt]", scpi::kNothing, [&reg](Call& call) { call.answer.Integer(reg.TakeEvent()); });
  commands.Ask(name + ":CONDition", scpi::kNothing, [&reg](Call& call) { call.answer.Integer(reg.condition()); });
  AddMask(commands, name + ":ENABle", reg.enable);
  AddMask(commands, name + ":PTRansition", reg.positive);
  AddMask(commands, name + ":NTRansition", reg.negative);
}

}  // namespace

void AddStatus(scpi::Commands& commands, scpi::Status& status) {
  AddRegister(commands, "STATus:OPERation", status.operation);
  AddRegister(commands, "STATus:QUEStionable", status.questionable);
  commands.Do("STATus:PRESet", scpi::kNothing, [&status](Call&) { status.Preset(); });
}

}  // namespace siggen::model
