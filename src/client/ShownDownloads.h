#pragma once

#include "engine/Download.h"
#include "engine/TimerFunction.h"
#include "observation/ObservableObject.h"
#include "observation/Published.h"

#include <chrono>
#include <vector>

namespace quorvel {

/// The downloads that the owner is shown: all that are under way, and those that ended a moment ago.
///
/// Those that ended go together, `stay` after the last one did, unless somebody is at them then. One that was
/// cancelled goes at once. Main thread only.
class ShownDownloads final : public ObservableObject {
 public:
  static constexpr std::chrono::milliseconds stay{12'000};

  explicit ShownDownloads(TimerFunction startTimer);
  ~ShownDownloads();

  /// In the order of their starts.
  Published<std::vector<Download>> list{*this, {}};

  /// A download has started, come further or ended.
  void show(const Download& download);
  /// Somebody points at them, or has the focus there. The time begins anew when nobody does any more.
  void setLookedAt(bool isLookedAt);

 private:
  void restart();
  void removeEnded();

  TimerFunction startTimer_;
  sigc::connection pending_;
  bool isLookedAt_ = false;
};

} // namespace quorvel
