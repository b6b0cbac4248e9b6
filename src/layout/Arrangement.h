#pragma once

#include "layout/Container.h"

#include <vector>

namespace quorvel {

/// Widgets in a row, in the direction of the writing, or in a column, `spacing` points apart. What is left
/// over along it those share that expand that way. Across it each gets what it would like, at `alignment`;
/// and all there is where it expands that way, or `alignment` is to fill.
///
/// What the toolkit's own box does, at a fraction of its cost: to tell how high or wide they are, the box and
/// the widgets' own alignments try dozens of widths on every text that wraps, and this gives each the one
/// width it will have.
struct Arrangement {
  Gtk::Orientation orientation;
  int spacing;
  std::vector<Gtk::Widget*> members;
  Gtk::Align alignment = Gtk::Align::FILL;
  /// Of a row: every member has the same width, whatever it asks for beyond its minimum.
  bool areWidthsEqual = false;
};

Request widthRequest(const Arrangement& arrangement);
/// The height in this width (-1: in the one that it would like).
Request heightRequest(const Arrangement& arrangement, int width);
/// Gives each member its place in their common parent, which is so large.
void arrange(const Arrangement& arrangement, int width, int height);

} // namespace quorvel
