#pragma once

#include "layout/Container.h"
#include "layout/RowHeights.h"

#include <gtkmm/adjustment.h>
#include <gtkmm/viewport.h>

namespace quorvel {

/// Rows one below the other, `spacing` points apart, of which only those exist that are in sight or near it.
///
/// It stands anywhere inside a scrolled viewport and asks for the height of the whole list. Rows come and go
/// as it is scrolled, before the next frame is drawn; one that has the focus stays. Outside a viewport all
/// rows exist. See `LazyRows` for the records behind the rows.
class LazyColumn : public Container {
 protected:
  explicit LazyColumn(int spacing);

  /// Follows the list as it is now. Never called in the middle of a layout.
  void update();

  virtual std::size_t count() const = 0;
  /// Makes the children the rows of these places in the list, in that order.
  virtual void showRows(const std::vector<std::size_t>& places) = 0;

  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;

 private:
  void enterViewport();
  void leaveViewport();
  void updateBeforeNextFrame();
  void followCount();
  std::vector<std::size_t> wantedPlaces() const;
  void keepInPlace(const RowHeights& before);
  int sightTop() const;
  void measureRows(RowHeights& heights, int width) const;
  template <class Visit>
  void forEachRow(Visit&& visit) const;

  int spacing_;
  RowHeights heights_;
  int width_ = 0;                   ///< what `heights_` hold for; 0 before the first layout
  std::vector<std::size_t> places_; ///< in the list, of the children
  bool isUpdateDue_ = false;
  Gtk::Viewport* viewport_ = nullptr; ///< while it is mapped inside one
  Glib::RefPtr<Gtk::Adjustment> scroll_;
  std::vector<sigc::connection> scrolling_;
};

} // namespace quorvel
