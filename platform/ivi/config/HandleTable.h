#ifndef TVRIVI_CONFIG_HANDLE_TABLE_H
#define TVRIVI_CONFIG_HANDLE_TABLE_H

#include <cstdint>
#include <memory>
#include <mutex>
#include <variant>
#include <vector>

#include "IviConfigServer.h"
#include "config/Model.h"
#include "config/Store.h"

namespace tvrivi {

/// What a handle stands for; the alternative is its kind.
using Target =
    std::variant<std::monostate, Store*, const Session*, const DriverSession*, const HardwareAsset*,
                 const SoftwareModule*, const VirtualName*, const VirtualRange*, const PhysicalName*,
                 const DataComponent*, const std::vector<SoftwareModule>*, const std::vector<VirtualName>*,
                 const std::vector<VirtualRange>*, const std::vector<PhysicalName>*, const std::vector<DataComponent>*>;

/// The configuration handles of the process. A handle is a number in the clothes of a pointer, the index of a slot and
/// above it how often the slot has been used: whatever a caller passes, nothing is ever read through it.
class HandleTable {
 public:
  struct Entry {
    std::shared_ptr<Store> store;  // null when the handle is not open
    Target target;
  };

  IviConfigHandle Add(std::shared_ptr<Store> store, Target target);
  Entry Find(IviConfigHandle handle);

  /// False when the handle is not open, or is a store's.
  bool RemoveItem(IviConfigHandle handle);

  /// Ends the store and every handle onto it. False when the handle is no open store.
  bool RemoveStore(IviConfigHandle handle);

 private:
  struct Slot {
    std::uint32_t generation = 0;
    Entry entry;
  };

  Slot* FindSlot(IviConfigHandle handle);
  void Free(Slot& slot);

  std::mutex guard_;
  std::vector<Slot> slots_;
  std::vector<std::uint32_t> free_;
};

/// Never destroyed: handles may be given back while the process ends.
HandleTable& Handles();

}  // namespace tvrivi

#endif
