#pragma once

#include "layout/KeyedRows.h"
#include "layout/stacks.h"

namespace quorvel {

class DesktopBrowserModel;
class DownloadRow;
struct Download;

/// A quiet line for each download below the page: its name, how far it has come, and what can be done about
/// it. It takes no room while there is none, and no more than a few lines' however many there are.
class DownloadsView : public HStack {
 public:
  /// The model has to outlive the view.
  explicit DownloadsView(DesktopBrowserModel& browser);

 private:
  void refresh();
  void watchUse();
  DownloadRow* makeRow(const Download& download);

  DesktopBrowserModel& browser_;
  VStack* lines_;
  KeyedRows<Download, DownloadRow> rows_;
};

} // namespace quorvel
