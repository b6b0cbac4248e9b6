#pragma once

#include <utility>
#include <vector>

namespace quorvel {

/// The widgets of a view that shows one per case of something, each beside its case, in their order on
/// screen.
template <class Case, class Widget>
using WidgetPer = std::vector<std::pair<Case, Widget*>>;

} // namespace quorvel
