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
      inspector_(*verticalScroller("Inspector", Gtk::make_managed<InspectorPanel>(store))) {
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
  const int leading = atLeast(sidebarWidth, sidebar_);
  const int trailing = hasRoomForInspector(width) ? atLeast(inspectorWidth, inspector_) : 0;
  allocateFromLeadingEdge(sidebar_, {0, 0, leading, height}, width);
  allocateFromLeadingEdge(detail_, {leading, 0, width - leading - trailing, height}, width);
  inspector_.set_child_visible(trailing > 0);
  if (trailing > 0)
    allocateFromLeadingEdge(inspector_, {width - trailing, 0, trailing, height}, width);
}

void ConsoleColumns::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
  gradient_.draw(*this, *snapshot);
  Container::snapshot_vfunc(snapshot);
}

} // namespace quorvel
