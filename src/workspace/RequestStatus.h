#pragma once

#include "vocabulary/AccentTone.h"

namespace quorvel {

/// Where a request stands.
enum class RequestStatus { routed, drafting, waiting, complete };

template <>
struct EnumerationTable<RequestStatus> {
  struct Row {
    std::string_view rawValue;
    AccentTone tone;
  };
  static constexpr PerCase<RequestStatus, Row> rows{
      Row{"Routed", AccentTone::blue}, Row{"Drafting", AccentTone::green}, Row{"Waiting", AccentTone::gold},
      Row{"Complete", AccentTone::slate}};
};

constexpr AccentTone tone(RequestStatus status) {
  return row(status).tone;
}

} // namespace quorvel
