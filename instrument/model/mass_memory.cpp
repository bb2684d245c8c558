// :MMEMory: devices, directories, files, states and screenshots.
#include <cstdio>

#include "model/bind.h"
#include "model/instrument.h"
#include "model/state_file.h"
#include "model/trees.h"
#include "panel/front_panel.h"

namespace siggen::model {
namespace {

using scpi::Bytes;
using scpi::Call;
using scpi::Commands;
using scpi::Error;
using scpi::kNothing;
using scpi::kOne;
using scpi::Refusal;

constexpr scpi::Arity kTwo{2, 2};

// Parameters are read in order before anything is done with them.
struct Place {
  explicit Place(Call& call) : device(call.Text()), path(call.Text()) {}
  std::string device;
  std::string path;
};

void AddDevices(Commands& commands, FileStore& files) {
  commands.Do("MMEMory:MSIS", kOne, [&files](Call& call) { files.SelectDevice(call.Text()); });
  commands.Ask("MMEMory:MSIS", kNothing, [&files](Call& call) { call.answer.Plain(files.current_device()); });
  commands.Do("MMEMory:CDIRectory", kOne, [&files](Call& call) { files.SelectDirectory(call.Text()); });
  commands.Ask("MMEMory:CDIRectory", kNothing, [&files](Call& call) { call.answer.Plain(files.current_directory()); });
  commands.Do("MMEMory:EJECt", kOne, [&files](Call& call) { files.Eject(call.Text()); });
  commands.Ask("MMEMory:CATalog:MSUS", kNothing, [&files](Call& call) {
    for (const std::string& device : files.Devices()) call.answer.Plain(device);
  });
}

void AddDirectories(Commands& commands, FileStore& files) {
  // Used and free bytes of the device, then one entry for each name: "name,type,size".
  commands.Ask("MMEMory:CATalog:DIRectory", kTwo, [&files](Call& call) {
    const Place place(call);
    const auto entries = files.List(place.device, place.path);
    call.answer.Integer(static_cast<std::int64_t>(files.Used(place.device)));
    call.answer.Integer(static_cast<std::int64_t>(files.Free(place.device)));
    for (const FileStore::Entry& entry : entries) {
      call.answer.Quoted(entry.name + (entry.directory ? ",DIR," : ",FILE,") + std::to_string(entry.size));
    }
  });
  commands.Ask("MMEMory:CATalog:DIRectory:SIZE", kTwo, [&files](Call& call) {
    const Place place(call);
    call.answer.Integer(static_cast<std::int64_t>(files.SizeOf(place.device, place.path)));
  });
  commands.Do("MMEMory:CREate:DIRectory", kTwo, [&files](Call& call) {
    const Place place(call);
    files.CreateDirectory(place.device, place.path);
  });
  commands.Do("MMEMory:DELete:DIRectory", kTwo, [&files](Call& call) {
    const Place place(call);
    files.RemoveDirectory(place.device, place.path);
  });
}

void AddFiles(Commands& commands, FileStore& files) {
  commands.Do("MMEMory:COPY", {4, 4}, [&files](Call& call) {
    const Place from(call);
    const Place to(call);
    files.Copy(from.device, from.path, to.device, to.path);
  });
  commands.Do("MMEMory:DELete:FILe", kTwo, [&files](Call& call) {
    const Place place(call);
    files.Remove(place.device, place.path);
  });
  commands.Do("MMEMory:DATA", {3, 3}, [&files](Call& call) {
    const Place place(call);
    files.Write(place.device, place.path, call.Block());
  });
  commands.Ask("MMEMory:DATA", kTwo, [&files](Call& call) {
    const Place place(call);
    call.answer.Block(files.Read(place.device, place.path));
  });
}

// The first of screen001.png, screen002.png ... that is not taken, in the current directory.
std::string NextScreenshot(const FileStore& files) {
  for (unsigned number = 1; number <= 999; ++number) {
    char name[16];
    std::snprintf(name, sizeof name, "screen%03u.png", number);
    if (!files.HasFile("", name)) return name;
  }
  throw Refusal(Error::kDirectoryFull);
}

Bytes Screenshot(Instrument& instrument) {
  return panel::DrawFrontPanel({.generator = instrument.generator(),
                                .model = instrument.identity().variant.name,
                                .unit_name = instrument.keepsakes().unit_name,
                                .time = instrument.wall_clock().Text(instrument.now()),
                                .errors = instrument.status().errors.size()});
}

void AddStates(Commands& commands, Instrument& instrument) {
  FileStore& files = instrument.files();
  Generator& generator = instrument.generator();
  constexpr scpi::Arity kState{3, 3};
  // The number in front is there for the standard's sake: there is one state, number 0.
  const auto read_place = [](Call& call) {
    call.Integer(0, 0, 0);
    return Place(call);
  };
  commands.Do("MMEMory:STORe:STATe", kState, [&files, &generator, read_place](Call& call) {
    const Place place = read_place(call);
    files.Write(place.device, place.path, Bytes::Copy(WriteState(generator.now, generator.variant())));
  });
  commands.Do("MMEMory:LOAD:STATe", kState, [&files, &generator, read_place](Call& call) {
    const Place place = read_place(call);
    generator.Load(ReadState(files.Read(place.device, place.path).view, generator.variant()));
  });
  commands.Do("MMEMory:STORe:SCReen", kNothing,
              [&instrument, &files](Call&) { files.Write("", NextScreenshot(files), Screenshot(instrument)); });
  commands.Ask("MMEMory:STORe:SCReen", kNothing,
               [&instrument](Call& call) { call.answer.Block(Screenshot(instrument)); });
}

}  // namespace

void AddMassMemory(Commands& commands, Instrument& instrument) {
  AddDevices(commands, instrument.files());
  AddDirectories(commands, instrument.files());
  AddFiles(commands, instrument.files());
  AddStates(commands, instrument);
}

}  // namespace siggen::model
