#pragma once

#include "vocabulary/Enumeration.h"

namespace quorvel {

/// The accent a record, pill or tile is tagged with; its colours are the palette's business.
enum class AccentTone { ink, green, blue, clay, gold, mint, slate };

template <>
struct EnumerationTable<AccentTone> {
  struct Row {
    std::string_view rawValue;
  };
  static constexpr PerCase<AccentTone, Row> rows{Row{"ink"},  Row{"green"}, Row{"blue"}, Row{"clay"},
                                                 Row{"gold"}, Row{"mint"},  Row{"slate"}};
};

} // namespace quorvel
