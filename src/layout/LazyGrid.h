#pragma once

#include "layout/Container.h"
#include "layout/RowHeights.h"

#include <gtkmm/adjustment.h>
#include <gtkmm/viewport.h>

namespace quorvel {

/// Cells of a list in lines of equal columns, of which only those exist that are in sight or near it.
///
/// It stands anywhere inside a scrolled viewport and asks for the height of the whole list. Cells come and go
/// as it is scrolled, before the next frame is drawn; a line that has the focus stays. Outside a viewport all
/// cells exist. A cell fills its column, keeps its natural height and stands in the middle of its line. See
/// `LazyRows` for the records behind the cells.
class LazyGrid : public Container {
 public:
  /// How the cells are arranged, in points.
  struct Form {
    int spacing;                ///< between lines and between columns
    int minimumColumnWidth = 0; ///< as many columns as fit; none given, there is one

    bool operator==(const Form&) const = default;
  };

 protected:
  explicit LazyGrid(Form form);

  /// Follows the list as it is now. Never called in the middle of a layout.
  void update();

  virtual std::size_t count() const = 0;
  /// Makes the children the cells of these places in the list, in that order.
  virtual void showCells(const std::vector<std::size_t>& places) = 0;

  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void size_allocate_vfunc(int width, int height, int baseline) override;

 private:
  void enterViewport();
  void leaveViewport();
  void updateBeforeNextFrame();
  void followCount();
  void followWidth(int width);
  int expectedWidth() const;
  std::size_t columnCount(int width) const;
  Request columnWidth() const;
  std::size_t lineCount() const;
  std::vector<std::size_t> wantedPlaces() const;
  void keepInPlace(const RowHeights& before);
  int sightTop() const;
  int lineHeight(const std::vector<Gtk::Widget*>& cells, int width, std::size_t perLine) const;
  void measureLines(RowHeights& heights, int width, std::size_t perLine) const;
  template <class Visit>
  void forEachLine(std::size_t perLine, const Visit& visit) const;

  Form form_;
  RowHeights heights_; ///< of the lines
  std::size_t shownCount_ = 0;
  std::size_t perLine_ = 1;
  int width_ = 0;                   ///< what `heights_` hold for; 0 before the first layout
  mutable int widestCell_ = 0;      ///< that ever was: columns do not grow and shrink as it is scrolled
  std::vector<std::size_t> places_; ///< in the list, of the children
  bool isUpdateDue_ = false;
  Gtk::Viewport* viewport_ = nullptr; ///< while it is mapped inside one
  Glib::RefPtr<Gtk::Adjustment> scroll_;
  std::vector<sigc::connection> scrolling_;
};

} // namespace quorvel
