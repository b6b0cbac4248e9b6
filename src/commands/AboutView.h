#pragma once

#include "commands/SecondaryWindow.h"
#include "layout/stacks.h"

#include <functional>
#include <gtkmm/button.h>
#include <memory>
#include <string>
#include <vector>

namespace quorvel {

/// What a program tells about itself.
struct About {
  std::string name, version, summary;
  std::string icon;                 ///< its name in the desktop's icon theme
  std::vector<std::string> details; ///< a line each: versions, the service, where data lies
  std::function<void()> showWebsite = {};

  /// All of it as one text for a report, with the licence.
  std::string text() const;
};

/// Name and version of the toolkit that is installed, which may be newer than the one built against.
std::string toolkitVersion();

/// Logo, name and that text, which can be selected, and which a button copies.
class AboutView : public VStack {
 public:
  explicit AboutView(const About& about);

  /// Where the focus begins: on the text it would select all of that.
  Gtk::Widget& firstStop() { return copy_; }

 private:
  Gtk::Button& copy_;
};

/// A window with that, named after the program.
std::unique_ptr<SecondaryWindow> makeAboutWindow(const About& about);

} // namespace quorvel
