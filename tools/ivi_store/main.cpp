// ivi-store: looks into configuration stores and edits them.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "FolderLock.h"
#include "Listing.h"
#include "StoreDocument.h"
#include "config/BuiltInStore.h"
#include "config/Locations.h"
#include "config/StoreFile.h"
#include "config/StoreSource.h"

namespace {

enum ExitCode { kDone = 0, kRefused = 1, kStoreFailed = 2, kUsage = 64 };

std::string DefaultLocation() {
  const std::string location = tvrivi::ProcessDefaultLocation();
  return location.empty() ? std::string(tvrivi::MasterLocation()) : location;
}

void Init(const std::string& location) {
  const std::filesystem::path folder = std::filesystem::path(location).parent_path();
  std::error_code failed;
  if (!folder.empty()) std::filesystem::create_directories(folder, failed);
  if (failed) throw tvrivi::StoreError(folder.string() + ": " + failed.message());
  if (!tvrivi::CreateFile(location, tvrivi::BuiltInStore())) {
    throw Refusal("there is a store at " + location + " already; it is left as it is");
  }
  std::cout << location << ": created\n";
}

// Reads the store, lets edit work on it, and writes it; no other run of the tool comes in between.
template <typename Edit>
void EditStore(const std::string& location, Edit edit) {
  const FolderLock lock(location);
  StoreDocument store(location);
  edit(store);
  store.Save();
}

int Run(int argc, char** argv) {
  CLI::App app{"Looks into an IVI configuration store and edits it."};
  app.footer(
      "Exit codes: 0 done; 1 refused, as a name that is taken or missing; 2 the store cannot be read or written; "
      "64 wrong usage.");
  app.require_subcommand(1);
  app.fallthrough();
  std::string location = DefaultLocation();
  app.add_option("--store", location,
                 "The store's file. Without it: the environment variable IVICONFIGSERVERDEFAULT, else the master store")
      ->capture_default_str();

  NewSession session;
  CLI::App* init = app.add_subcommand("init", "Make a store with the driver's software module; never overwrites one");
  CLI::App* list = app.add_subcommand("list", "List the names under which a driver can be opened");
  CLI::App* check = app.add_subcommand("check", "Read the store as a driver does and say what is wrong with it");
  CLI::App* show = app.add_subcommand("show", "Show what a driver is told when it opens a name");
  CLI::App* add = app.add_subcommand("add-session", "Add a hardware asset, a driver session and a logical name");
  CLI::App* remove = app.add_subcommand("remove", "Remove a name, and the session and asset that only it used");
  for (CLI::App* with_name : {show, add, remove}) {
    with_name->add_option("NAME", session.name, "Logical name or driver session")->required();
  }
  add->add_option("--resource", session.resource, "Resource descriptor, as TCPIP0::192.0.2.7::5025::SOCKET")
      ->required();
  add->add_option("--setup", session.setup, "DriverSetup text, as Model:TD48142C");
  add->add_flag("--simulate", session.simulate, "Open without an instrument");

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kDone : kUsage;
  }
  if (*init) Init(location);
  if (*list) PrintList(std::cout, StoreDocument(location).model());
  if (*check) PrintCheck(std::cout, StoreDocument(location).model(), location);
  if (*show) PrintSession(std::cout, StoreDocument(location).model(), session.name);
  if (*add) EditStore(location, [&](StoreDocument& store) { store.AddSession(session); });
  if (*remove) EditStore(location, [&](StoreDocument& store) { store.RemoveSession(session.name); });
  return kDone;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const Refusal& refusal) {
    std::cerr << "ivi-store: " << refusal.what() << '\n';
    return kRefused;
  } catch (const std::exception& error) {
    std::cerr << "ivi-store: " << error.what() << '\n';
    return kStoreFailed;
  }
}
