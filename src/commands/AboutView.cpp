#include "commands/AboutView.h"

#include "brand/BrandMark.h"
#include "brand/buttons.h"
#include "brand/text.h"
#include "layout/accessible.h"

#include <gdkmm/clipboard.h>
#include <gtk/gtk.h>

namespace quorvel {
namespace {

constexpr auto licence = "All rights reserved; the libraries it is built on keep their own licences.";

Gtk::Button& copyingButton(const std::string& text) {
  const auto copy = [text] { Gdk::Display::get_default()->get_clipboard()->set_text(text); };
  auto* result = button("Copy", ButtonStyle::bordered, copy);
  setAccessibleDescription(*result, "Copies everything that is said here, for a report");
  return *result;
}

Gtk::Label* selectable(const std::string& content) {
  auto* label = text(content, {TextStyle::caption, {}, TextColor::secondaryInk});
  label->set_selectable(true);
  label->set_max_width_chars(64);
  return label;
}

} // namespace

std::string toolkitVersion() {
  return "GTK " + std::to_string(gtk_get_major_version()) + "." + std::to_string(gtk_get_minor_version()) +
         "." + std::to_string(gtk_get_micro_version());
}

std::string About::text() const {
  std::string all = name + " " + version + "\n";
  for (const auto& line : details)
    all += line + "\n";
  return all + licence;
}

AboutView::AboutView(const About& about)
    : VStack(18, HorizontalAlignment::centre), copy_(copyingButton(about.text())) {
  auto* heading =
      vstack(2,
             {text(about.name, {TextStyle::title2, FontWeight::bold}),
              text(about.summary, {TextStyle::caption, FontWeight::semibold, TextColor::secondaryInk})},
             HorizontalAlignment::centre);
  auto* actions = hstack(10, {&copy_});
  if (about.showWebsite)
    actions->add({button("Website", ButtonStyle::bordered, about.showWebsite)});
  padded(24, this)->add({Gtk::make_managed<BrandMark>(64), heading, selectable(about.text()), actions});
}

std::unique_ptr<SecondaryWindow> makeAboutWindow(const About& about) {
  auto* view = Gtk::make_managed<AboutView>(about);
  auto window = std::make_unique<SecondaryWindow>("About " + about.name, *view);
  window->startAt(view->firstStop());
  window->set_icon_name(about.icon);
  return window;
}

} // namespace quorvel
