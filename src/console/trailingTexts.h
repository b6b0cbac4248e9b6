#pragma once

#include <gtkmm/label.h>
#include <initializer_list>

namespace quorvel {

/// Content at the leading side of a card and, level with its top, texts at the trailing side, `spacing`
/// points apart from each other. The texts get the width they like first; the content wraps in what is left.
/// Managed.
Gtk::Widget* withTrailingTexts(Gtk::Widget* content, int spacing, std::initializer_list<Gtk::Label*> texts);

} // namespace quorvel
