#pragma once

#include "vocabulary/AccentTone.h"
#include "workspace/Record.h"

namespace quorvel {

/// One subscription plan.
struct PricingPlan {
  std::string id;
  std::string name;
  std::string price;                 ///< with currency and period
  std::string audience;              ///< one sentence on whom it is for
  std::vector<std::string> included; ///< what it offers
  bool isFeatured;                   ///< shown as recommended
  AccentTone tone;

  bool operator==(const PricingPlan&) const = default;
  auto fields() const { return std::tie(id, name, price, audience, included, isFeatured, tone); }
};

} // namespace quorvel
