// Exported: finding resources.
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "api.h"
#include "discovery.h"
#include "search_expression.h"
#include "text_out.h"

using namespace tvr::visa;

namespace {

// What a search has found and not told yet.
class FindList final : public ManagedObject {
 public:
  explicit FindList(std::vector<std::string> descriptors) : descriptors_(std::move(descriptors)) {}

  ViStatus Next(ViChar description[]) {
    const std::lock_guard lock(guard_);
    if (told_ == descriptors_.size()) return VI_ERROR_RSRC_NFOUND;
    return PutText(description, descriptors_[told_++]);
  }

  ViStatus GetAttribute(ViAttr /*attribute*/, void* /*value*/) override { return VI_ERROR_NSUP_ATTR; }
  ViStatus SetAttribute(ViAttr /*attribute*/, ViAttrState /*value*/) override { return VI_ERROR_NSUP_ATTR; }

 private:
  const std::vector<std::string> descriptors_;
  std::mutex guard_;
  std::size_t told_ = 1;  // the first by viFindRsrc itself
};

}  // namespace

ViStatus viFindRsrc(ViSession sesn, ViConstString expr, ViPFindList list, ViPUInt32 count, ViChar desc[]) {
  if (list != nullptr) *list = VI_NULL;
  if (count != nullptr) *count = 0;
  if (desc != nullptr) *desc = '\0';
  return On<ResourceManager>(sesn, [&](ResourceManager&) -> ViStatus {
    SearchExpression expression;
    if (expr == nullptr || !expression.Parse(expr)) return VI_ERROR_INV_EXPR;
    std::vector<std::string> found;
    if (const ViStatus status = FindInstruments(found); status < 0) return status;
    std::erase_if(found, [&](const std::string& descriptor) { return !expression.Matches(descriptor); });
    if (found.empty()) return VI_ERROR_RSRC_NFOUND;
    const std::string first = found.front();
    const auto number = static_cast<ViUInt32>(found.size());
    if (list != nullptr) {
      *list = ManagedObject::GiveOut(sesn, std::make_unique<FindList>(std::move(found)));
      if (*list == VI_NULL) return VI_ERROR_ALLOC;
    }
    if (count != nullptr) *count = number;
    if (desc != nullptr) PutText(desc, first);
    return VI_SUCCESS;
  });
}

ViStatus viFindNext(ViFindList list, ViChar desc[]) {
  return On<FindList>(list, [&](FindList& found) -> ViStatus {
    if (desc == nullptr) return VI_ERROR_USER_BUF;
    return found.Next(desc);
  });
}
