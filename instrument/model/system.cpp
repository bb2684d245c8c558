// :SYSTem: errors, identity details, presets and power. Time, network and firmware have files of their own.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;
using scpi::kNothing;
using scpi::kOne;

enum class DataScope { kUser, kSystem };
constexpr scpi::Word<DataScope> kDataScopes[] = {{"USER", DataScope::kUser}, {"SYSTem", DataScope::kSystem}};

constexpr std::size_t kLongestUnitName = 64;
constexpr std::string_view kMacAddress = "00-48-1A-2C-00-01";
constexpr double kTemperature = 38.5;  // degrees Celsius, inside

void AddErrors(Commands& commands, scpi::Status& status) {
  scpi::ErrorQueue& errors = status.errors;
  commands.Ask("SYSTem:ERRor[:NEXT]", kNothing, [&errors](Call& call) { call.answer.Plain(errors.Pop()); });
  commands.Ask("SYSTem:ERRor:ALL", kNothing, [&errors](Call& call) { call.answer.Plain(errors.PopAll()); });
  commands.Ask("SYSTem:ERRor:COUNt", kNothing,
               [&errors](Call& call) { call.answer.Integer(static_cast<std::int64_t>(errors.size())); });
  commands.Ask("SYSTem:LOG:ERRor", kNothing, [&status](Call& call) { call.answer.Plain(status.log.Text()); });
}

void AddResets(Commands& commands, Instrument& instrument) {
  commands.Do("SYSTem:PRESet", kNothing, [&instrument](Call&) { instrument.Reset(); });
  commands.Do("SYSTem:DEFault:RESet:FACTory", kNothing, [&instrument](Call&) { instrument.FactoryReset(); });
  commands.Do("SYSTem:DEFault:RESet:MASTer", kNothing, [&instrument](Call&) {
    instrument.FactoryReset();
    instrument.files().ResetUserFiles();
    instrument.files().ResetSystemFiles();
  });
  commands.Do("SYSTem:DEFault:RESet:DATA", kOne, [&instrument](Call& call) {
    if (call.Choice(std::span<const scpi::Word<DataScope>>(kDataScopes)) == DataScope::kUser) {
      instrument.files().ResetUserFiles();
    } else {
      instrument.files().ResetSystemFiles();
    }
  });
  commands.Do("SYSTem:REBoot", kNothing, [&instrument](Call&) { instrument.Reboot(); });
  commands.Do("SYSTem:SHUTdown", kNothing, [&instrument](Call&) { instrument.Shutdown(); });
}

}  // namespace

void AddSystem(Commands& commands, Instrument& instrument) {
  AddErrors(commands, instrument.status());
  AddResets(commands, instrument);
  commands.Ask("SYSTem:VERSion", kNothing, [](Call& call) { call.answer.Plain("1999.0"); });
  commands.Ask("SYSTem:MAC", kNothing, [](Call& call) { call.answer.Plain(kMacAddress); });
  commands.Ask("SYSTem:TEMPerature", kNothing, [](Call& call) { call.answer.Real(kTemperature); });
  BindText(commands, "SYSTem:UNIT:NAMe", kLongestUnitName, instrument.keepsakes().unit_name);
  commands.Ask("SYSTem:OPTions", kNothing, [](Call& call) { call.answer.Plain(kOptions); });
  commands.Ask("SYSTem:OPTions:CONFiguration", kNothing,
               [](Call& call) { call.answer.Plain("FM LICENSED,PULSE LICENSED,GPS INSTALLED"); });
}

}  // namespace siggen::model
