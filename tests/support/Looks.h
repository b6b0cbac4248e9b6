#pragma once

#include <gtkmm/widget.h>
#include <string>

namespace quorvel::tests {

/// What a widget in a window looks like: a line for each part in their order, read from what is laid out and
/// drawn. Colours have their names in the palette; lengths are points.
///
///   padded 12 10                           free space around what follows: on every side, horizontally and
///                                          vertically, or top, trailing, bottom and leading
///   row 8 / column 8 top                   parts side by side or one below the other, so far apart, and
///   where
///                                          the first one stands if that is neither the middle nor the
///                                          beginning
///   form row 18 / form column 18           the same of parts that stand otherwise where there is less room
///   inset 12 10                            free space on the ground of what stands above, in it
///   button, button 28 high, switch         what can be pressed
///   spacer / spacer 72                     what takes the room that is left, and its least length
///   ground panel round 10, line white/0.115, shadow black/0.22 0 12 16
///                                          what is drawn for a part itself, not for the parts in it
///   "Live" 11 700 green                    a text with its size, weight and colour
///   *lock.fill 14 700 green                a symbol with the length of its side, its weight and its colour
std::string lookOf(Gtk::Widget& root);
/// Whether it looks so as soon as whatever moves has come to rest. The look begins and ends with an end of
/// line.
bool comesToLook(Gtk::Widget& root, const std::string& look);

} // namespace quorvel::tests
