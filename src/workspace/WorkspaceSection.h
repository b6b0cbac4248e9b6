#pragma once

#include "vocabulary/Enumeration.h"

namespace quorvel {

/// The console's sections, in the order of its navigation.
enum class WorkspaceSection { overview, agents, requests, approvals, connectors, browser, security, pricing };

template <>
struct EnumerationTable<WorkspaceSection> {
  struct Row {
    std::string_view rawValue;
    std::string_view title;
    std::string_view subtitle;
    std::string_view symbol;
    char shortcut;
  };
  static constexpr PerCase<WorkspaceSection, Row> rows{
      Row{"overview", "Command Center", "Today at a glance", "rectangle.3.group", '1'},
      Row{"agents", "Agent Team", "Specialized helpers", "person.2.wave.2", '2'},
      Row{"requests", "Live Requests", "Queued work", "tray.and.arrow.down", '3'},
      Row{"approvals", "Approvals", "Human gates", "checkmark.seal", '4'},
      Row{"connectors", "Connectors", "App access", "point.3.connected.trianglepath.dotted", '5'},
      Row{"browser", "Browser", "Page context", "safari", '6'},
      Row{"security", "Trust", "Controls", "lock.shield", '7'},
      Row{"pricing", "Plans", "Subscription fit", "chart.bar", '8'},
  };
};

constexpr std::string_view title(WorkspaceSection section) {
  return row(section).title;
}
constexpr std::string_view subtitle(WorkspaceSection section) {
  return row(section).subtitle;
}
/// The name of the section's icon.
constexpr std::string_view symbol(WorkspaceSection section) {
  return row(section).symbol;
}
/// The key that selects the section; which modifier goes with it is the window's business.
constexpr char shortcut(WorkspaceSection section) {
  return row(section).shortcut;
}

} // namespace quorvel
