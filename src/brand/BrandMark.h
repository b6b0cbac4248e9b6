#pragma once

#include <gtkmm/widget.h>

namespace quorvel {

/// The logo: a light rounded tile with a "Q" and a tilted bar, `size` points square.
class BrandMark : public Gtk::Widget {
 public:
  explicit BrandMark(int size = 36);

  /// The measures of a mark of this size, in points; offsets are from its centre, to the right and down.
  struct Geometry {
    explicit Geometry(double size);
    double cornerRadius, letterSize, letterOffsetY;
    double barWidth, barHeight, barOffsetX, barOffsetY;
    double shadowRadius, shadowOffsetY;
  };

 protected:
  void measure_vfunc(Gtk::Orientation orientation, int forSize, int& minimum, int& natural,
                     int& minimumBaseline, int& naturalBaseline) const override;
  void snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) override;

 private:
  void drawTile(GtkSnapshot* snapshot) const;
  void drawLetter(GtkSnapshot* snapshot);
  void drawBar(GtkSnapshot* snapshot) const;

  int size_;
  Geometry geometry_;
};

} // namespace quorvel
