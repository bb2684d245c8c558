// :SYSTem:DATE, :TIME and :GPS, and what the GPS receiver reports.
#include "model/bind.h"
#include "model/instrument.h"
#include "model/trees.h"

namespace siggen::model {
namespace {

using scpi::Call;
using scpi::Commands;
using scpi::Error;
using scpi::kNothing;
using scpi::kOne;
using scpi::Refusal;

constexpr scpi::Word<TimeSync> kTimeSyncs[] = {{"AUTO", TimeSync::kAuto}, {"MANual", TimeSync::kManual}};

// While a reference keeps the clock, nobody sets it by hand.
void RefuseWhileSynchronised(Instrument& instrument) {
  if (instrument.keepsakes().time_sync == TimeSync::kAuto)
    throw Refusal(Error::kSettingsConflict, "Time is synchronised");
}

int ReadPart(Call& call, int least, int most) { return static_cast<int>(call.Integer(least, most, least)); }

void AddClock(Commands& commands, Instrument& instrument) {
  using std::chrono::floor;

  commands.Ask("SYSTem:DATE", kNothing, [&instrument](Call& call) {
    const auto today = floor<std::chrono::days>(instrument.wall_clock().Read(instrument.now()));
    const std::chrono::year_month_day date(today);
    call.answer.Integer(int{date.year()});
    call.answer.Integer(unsigned{date.month()});
    call.answer.Integer(unsigned{date.day()});
  });
  commands.Do("SYSTem:DATE", {3, 3}, [&instrument](Call& call) {
    const std::chrono::year year(ReadPart(call, 2000, 2099));
    const std::chrono::month month(static_cast<unsigned>(ReadPart(call, 1, 12)));
    const std::chrono::day day(static_cast<unsigned>(ReadPart(call, 1, 31)));
    if (!(year / month / day).ok()) throw Refusal(Error::kDataOutOfRange);
    RefuseWhileSynchronised(instrument);
    instrument.wall_clock().SetDate(instrument.now(), year / month / day);
  });
  commands.Ask("SYSTem:TIME", kNothing, [&instrument](Call& call) {
    const auto reading = instrument.wall_clock().Read(instrument.now());
    const std::chrono::hh_mm_ss time(floor<std::chrono::seconds>(reading - floor<std::chrono::days>(reading)));
    call.answer.Integer(time.hours().count());
    call.answer.Integer(time.minutes().count());
    call.answer.Integer(time.seconds().count());
  });
  commands.Do("SYSTem:TIME", {3, 3}, [&instrument](Call& call) {
    const std::chrono::hours hours(ReadPart(call, 0, 23));
    const std::chrono::minutes minutes(ReadPart(call, 0, 59));
    const std::chrono::seconds seconds(ReadPart(call, 0, 59));
    RefuseWhileSynchronised(instrument);
    instrument.wall_clock().SetTime(instrument.now(), hours + minutes + seconds);
  });

  commands.Do("SYSTem:TIME:ZONE", kOne, [&instrument](Call& call) {
    const std::string zone = call.Text();
    if (!instrument.wall_clock().SetZone(zone)) throw Refusal(Error::kIllegalParameter, zone);
  });
  commands.Ask("SYSTem:TIME:ZONE", kNothing,
               [&instrument](Call& call) { call.answer.Plain(instrument.wall_clock().zone()); });
  commands.Ask("SYSTem:TIME:ZONE:CATalog", kNothing, [](Call& call) {
    for (const std::string& zone : WallClock::Zones()) call.answer.Plain(zone);
  });
}

}  // namespace

void AddTime(Commands& commands, Instrument& instrument) {
  Keepsakes& keepsakes = instrument.keepsakes();
  AddClock(commands, instrument);
  BindChoice(commands, "SYSTem:TIME:SYNC", kTimeSyncs, keepsakes.time_sync);
  commands.Ask("SYSTem:TIME:SYNC:STATus", kNothing, [&keepsakes](Call& call) {
    const bool synchronised = keepsakes.time_sync == TimeSync::kAuto;
    call.answer.Plain(!synchronised ? "NONE" : keepsakes.gps_on ? "GPS" : "INT");
  });
  BindBoolean(commands, "SYSTem:GPS:STATe", keepsakes.gps_on);
  commands.Ask("FETCh:GPS", kNothing, [&keepsakes](Call& call) {
    call.answer.Plain(keepsakes.gps_on ? "LOCKED,48.1372 N,11.5755 E,519 m" : "OFF");
  });
  commands.Ask("FETCh:GPS:FULL", kNothing, [&instrument, &keepsakes](Call& call) {
    if (!keepsakes.gps_on) return call.answer.Plain("OFF");
    call.answer.Plain("LOCKED,48.1372 N,11.5755 E,519 m,9 satellites,HDOP 0.9");
    call.answer.Plain(instrument.wall_clock().Text(instrument.now()));
  });
}

}  // namespace siggen::model
