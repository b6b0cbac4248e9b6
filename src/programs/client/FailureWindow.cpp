#include "programs/client/FailureWindow.h"

#include "brand/buttons.h"
#include "brand/text.h"
#include "layout/stacks.h"
#include "programs/client/QuorvelApp.h"

namespace quorvel {
namespace {

Gtk::Label* selectable(const Glib::ustring& sentence) {
  auto* label = text(sentence, {TextStyle::body});
  label->set_selectable(true); // to be looked up or sent to somebody
  label->set_max_width_chars(60);
  return label;
}

} // namespace

FailureWindow::FailureWindow(const Glib::ustring& sentence)
    : SecondaryWindow("Quorvel has stopped",
                      *padded(24, vstack(18, {selectable(sentence)}, HorizontalAlignment::trailing))) {
  set_icon_name(QuorvelApp::identifier);
  auto* closeButton = button("Close", ButtonStyle::prominent, [this] { close(); });
  dynamic_cast<VStack*>(get_child())->add({closeButton});
  startAt(*closeButton);
}

} // namespace quorvel
