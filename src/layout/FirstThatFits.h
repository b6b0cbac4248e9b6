#pragma once

#include "layout/Arrangement.h"

namespace quorvel {

/// One set of children and several arrangements of it, of which the first whose natural width fits is shown.
///
/// Where none fits, the last is. A child that the shown arrangement leaves out is hidden. The choice is made
/// anew for every width and needs no second set of widgets, so focus and text survive a change of
/// arrangement.
class FirstThatFits : public Container {
 public:
  /// Takes over every widget that occurs in an arrangement. Needs one at least.
  explicit FirstThatFits(std::vector<Arrangement> arrangements);

  /// Which arrangement a container of this width shows, counted from 0.
  std::size_t indexFor(int available) const;

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int available, int height, int baseline) override;

 private:
  std::vector<Arrangement> arrangements_;
};

} // namespace quorvel
