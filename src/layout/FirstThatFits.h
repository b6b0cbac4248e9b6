#pragma once

#include "layout/Container.h"

namespace quorvel {

/// One set of children and several arrangements of it, of which the first whose natural width fits is shown.
///
/// Where none fits, the last is. A child that the shown arrangement leaves out is hidden. The choice is made
/// anew for every width and needs no second set of widgets, so focus and text survive a change of
/// arrangement.
class FirstThatFits : public Container {
 public:
  /// A row or a column of some of the children, `spacing` points apart. Children of a row that expand share
  /// what is left over; children of a column all get its width, as far as their own alignment lets them.
  struct Form {
    Gtk::Orientation orientation;
    int spacing;
    std::vector<Gtk::Widget*> members;
  };

  /// Takes over every widget that occurs in a form. Needs one form at least.
  explicit FirstThatFits(std::vector<Form> forms);

  /// Which form a container of this width shows, counted from 0.
  std::size_t formFor(int available) const;

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int available, int height, int baseline) override;

 private:
  void place(const Form& form, int available, int height);

  std::vector<Form> forms_;
};

} // namespace quorvel
