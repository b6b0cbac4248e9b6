#pragma once

#include "brand/Color.h"

#include <gtkmm/window.h>
#include <string>
#include <vector>

namespace quorvel::tests {

/// What a window draws besides texts and symbols: grounds, outlines and shadows, as the toolkit hands them to
/// the display, not yet rounded to pixels.
class Drawing {
 public:
  explicit Drawing(Gtk::Window& window);
  /// What is drawn of exactly this shape, lowest first, and takes it away: "ground panel round 10", "line
  /// white/0.18".
  std::vector<std::string> take(const graphene_rect_t& place);

 private:
  struct Stroke {
    graphene_rect_t place;
    std::string look;
  };
  void add(GskRenderNode* node, const graphene_point_t& origin, double radius, double opacity);
  void add(const graphene_rect_t& place, const graphene_point_t& origin, std::string look);

  std::vector<Stroke> strokes_;
};

/// A number of a look, as short as it can be written with three digits behind the point.
std::string number(double value);
/// The palette's name of a colour, or its components; what shines through follows: "white/0.115".
std::string colorName(const Color& color);

} // namespace quorvel::tests
