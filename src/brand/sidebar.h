#pragma once

#include "brand/buttons.h"
#include "brand/text.h"

namespace quorvel {

// What both programs' sidebars are made of, besides their rows. What differs between the two is a parameter.

/// The logo beside the product's name. `name` is the look of the name. Managed.
struct SidebarHeader {
  int markSize;
  TextLook name;
  Glib::ustring subtitle;
};
Gtk::Widget* sidebarHeader(const SidebarHeader& header);

/// The wide, light button "+ New chat". Managed.
Gtk::Widget* newChatButton(FontWeight weight, Action action);

/// The caption above a list of rows. Managed.
Gtk::Widget* sidebarCaption(const Glib::ustring& caption, int padding);

/// A raised panel with a caption, a prominent green pill and a sentence below them. Managed.
Gtk::Widget* sidebarStatusCard(const Glib::ustring& caption, const Glib::ustring& pill,
                               const Glib::ustring& sentence);

} // namespace quorvel
