#include "programs/console/WindowGradient.h"

#include "brand/QuorvelBrand.h"

#include <cairomm/context.h>
#include <cairomm/surface.h>

namespace quorvel {
namespace {

/// As style sheets understand a gradient from corner to corner: the two other corners have its middle colour.
Cairo::RefPtr<Cairo::LinearGradient> fromCorner(double width, double height, bool isMirrored) {
  const double middleX = width / 2, middleY = height / 2;
  const double part = width * height / (width * width + height * height);
  const double x = (isMirrored ? -height : height) * part, y = width * part;
  auto gradient = Cairo::LinearGradient::create(middleX - x, middleY - y, middleX + x, middleY + y);
  constexpr auto colors = QuorvelBrand::windowGradient();
  for (std::size_t i = 0; i < colors.size(); ++i)
    gradient->add_color_stop_rgb(static_cast<double>(i) / (colors.size() - 1), colors[i].red, colors[i].green,
                                 colors[i].blue);
  return gradient;
}

} // namespace

void WindowGradient::draw(const Gtk::Widget& widget, Gtk::Snapshot& snapshot) {
  const Look look{widget.get_width(), widget.get_height(), widget.get_scale_factor(), widget.get_direction()};
  if (!painted_ || look != look_) {
    painted_.reset(paint(look));
    look_ = look;
  }
  gtk_snapshot_append_node(snapshot.gobj(), painted_.get());
}

GskRenderNode* WindowGradient::paint(const Look& look) {
  const auto picture = Cairo::ImageSurface::create(Cairo::Surface::Format::RGB24, look.width * look.scale,
                                                   look.height * look.scale);
  cairo_surface_set_device_scale(picture->cobj(), look.scale, look.scale);
  const auto brush = Cairo::Context::create(picture);
  brush->set_source(fromCorner(look.width, look.height, look.direction == Gtk::TextDirection::RTL));
  brush->paint();

  const graphene_rect_t bounds =
      GRAPHENE_RECT_INIT(0, 0, static_cast<float>(look.width), static_cast<float>(look.height));
  auto* node = gsk_cairo_node_new(&bounds);
  Cairo::Context drawing(gsk_cairo_node_get_draw_context(node), true);
  drawing.set_source(picture, 0, 0);
  drawing.paint();
  return node;
}

} // namespace quorvel
