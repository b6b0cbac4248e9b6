#pragma once

#include "vocabulary/AccentTone.h"

namespace quorvel {

/// The state of a human gate.
enum class ApprovalState { waiting, approved, paused };

template <>
struct EnumerationTable<ApprovalState> {
  struct Row {
    std::string_view rawValue;
    AccentTone tone;
  };
  static constexpr PerCase<ApprovalState, Row> rows{Row{"Needs review", AccentTone::gold},
                                                    Row{"Approved", AccentTone::green},
                                                    Row{"Paused", AccentTone::slate}};
};

constexpr AccentTone tone(ApprovalState state) {
  return row(state).tone;
}

} // namespace quorvel
