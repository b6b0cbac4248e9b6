#pragma once

#include "layout/stacks.h"

#include <glibmm/ustring.h>

namespace quorvel {

/// The three lines at the top of a screen: a small upper-case eyebrow, a large title and a detail that wraps.
class SectionHeader : public VStack {
 public:
  SectionHeader(const Glib::ustring& eyebrow, const Glib::ustring& title, const Glib::ustring& detail);
};

} // namespace quorvel
