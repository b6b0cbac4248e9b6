#pragma once

#include <gtkmm/settings.h>
#include <utility>

namespace quorvel::tests {

/// Something that the desktop says, said otherwise for as long as this lives.
template <class Value>
struct Setting {
  Setting(Glib::PropertyProxy<Value> proxy, Value value) : property(std::move(proxy)), before(property) {
    property = value;
  }
  ~Setting() { property = before; }
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;

  Glib::PropertyProxy<Value> property;
  Value before;
};

} // namespace quorvel::tests
