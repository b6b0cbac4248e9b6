#include "programs/console/ConsoleColumns.h"

#include "console/DetailView.h"
#include "console/InspectorPanel.h"
#include "console/SidebarView.h"

#include <algorithm>

namespace quorvel {
namespace {

constexpr int minimumWidth = 1180, minimumHeight = 760;
constexpr int sidebarWidth = 272, inspectorWidth = 320;
constexpr int widthWithInspector = 1500;

/// The width a column is meant to have, or what its text needs where the desktop's text is very large.
int atLeast(int width, const Gtk::Widget& column) {
  return std::max(width, widthRequest(column).minimum);
}

} // namespace

ConsoleColumns::ConsoleColumns(WorkspaceStore& store, Preferences& preferences)
    : sidebar_(*Gtk::make_managed<SidebarView>(store)),
      detail_(*Gtk::make_managed<DetailView>(store, preferences)),
      // It does not scroll by itself, and a window may be lower than it.
      inspector_(*verticalScroller(Gtk::make_managed<InspectorPanel>(store))) {
  add_css_class("console-columns");
  for (auto* column : {&sidebar_, &detail_, &inspector_})
    append(*column);
}

bool ConsoleColumns::hasRoomForInspector(int width) const {
  const int needed =
      atLeast(sidebarWidth, sidebar_) + widthRequest(detail_).minimum + atLeast(inspectorWidth, inspector_);
  return width >= std::max(widthWithInspector, needed);
}

void ConsoleColumns::measure_vfunc(Gtk::Orientation orientation, int, int& minimum, int& natural,
                                   int& minimumBaseline, int& naturalBaseline) const {
  minimumBaseline = naturalBaseline = -1;
  minimum = orientation == Gtk::Orientation::VERTICAL
                ? minimumHeight
                : std::max(minimumWidth, atLeast(sidebarWidth, sidebar_) + widthRequest(detail_).minimum);
  natural = minimum;
}

void ConsoleColumns::size_allocate_vfunc(int width, int height, int) {
  const int left = atLeast(sidebarWidth, sidebar_);
  const int right = hasRoomForInspector(width) ? atLeast(inspectorWidth, inspector_) : 0;
  sidebar_.size_allocate(Gtk::Allocation(0, 0, left, height), -1);
  detail_.size_allocate(Gtk::Allocation(left, 0, width - left - right, height), -1);
  inspector_.set_child_visible(right > 0);
  if (right > 0)
    inspector_.size_allocate(Gtk::Allocation(width - right, 0, right, height), -1);
}

} // namespace quorvel
