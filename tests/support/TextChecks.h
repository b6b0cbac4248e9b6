#pragma once

#include <array>
#include <gtkmm/widget.h>
#include <string>
#include <vector>

namespace quorvel::tests {

/// The texts of a screen that are cut, higher than their room, or stick out of a card or pill around them. A
/// text that keeps to one line may end in an ellipsis, and what is scrolled may lie out of sight.
std::vector<std::string> cutTexts(Gtk::Widget& screen);

/// Each pair of texts that lie over one another.
std::vector<std::string> overlappingTexts(Gtk::Widget& screen);

/// Each pair of neighbours of which one lies over the other, and whatever sticks out of the panel or column
/// around it, by the texts in them.
std::vector<std::string> overlappingParts(Gtk::Widget& screen);

/// What any of these finds.
std::vector<std::string> textFaults(Gtk::Widget& screen);

/// The text sizes that a desktop offers, as factors of the usual one.
inline constexpr std::array textFactors{1.0, 1.25, 1.5, 1.75, 2.0};

} // namespace quorvel::tests
