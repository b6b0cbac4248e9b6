#pragma once

#include "brand/NavigationRow.h"

namespace quorvel {

/// A destination of the sidebar. All of its panel can be pressed.
class DesktopClientNavRow : public NavigationRow {
 public:
  DesktopClientNavRow(const Glib::ustring& title, const Glib::ustring& subtitle, std::string_view symbolName,
                      Action action)
      : NavigationRow(title, subtitle, symbolName, Target::panel, std::move(action)) {
    padded(12, 0, this);
  }
};

} // namespace quorvel
