#include "link.h"

#include <vector>

namespace tvr::visa {

void Link::TraceRead(const ReadRequest& request, std::size_t received, ViStatus status) const {
  const iovec piece{request.into, received};
  trace::Message(session_, trace::Direction::kIn, {&piece, 1}, received, status);
}

ViStatus Link::TracedWrite(std::span<iovec> pieces, bool end, Deadline& deadline, std::size_t& sent) {
  const std::vector<iovec> as_given(pieces.begin(), pieces.end());
  const ViStatus status = transport_->Write(pieces, end && settings_.SendEnd(), deadline, sent);
  trace::Message(session_, trace::Direction::kOut, as_given, sent, status);
  return status;
}

}  // namespace tvr::visa
