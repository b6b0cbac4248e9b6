#include "brand/BrandMark.h"

#include "brand/QuorvelBrand.h"
#include "layout/accessible.h"

#include <algorithm>
#include <gtk/gtk.h>
#include <gtkmm/snapshot.h>

namespace quorvel {
namespace {

constexpr double barAngle = -14;

graphene_rect_t rectangle(double x, double y, double width, double height) {
  return GRAPHENE_RECT_INIT(static_cast<float>(x), static_cast<float>(y), static_cast<float>(width),
                            static_cast<float>(height));
}

GskRoundedRect rounded(const graphene_rect_t& bounds, double radius) {
  GskRoundedRect shape;
  gsk_rounded_rect_init_from_rect(&shape, &bounds, static_cast<float>(radius));
  return shape;
}

GdkRGBA rgba(const Color& color) {
  return {static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue),
          static_cast<float>(color.alpha)};
}

} // namespace

BrandMark::Geometry::Geometry(double s)
    : cornerRadius(0.24 * s), letterSize(0.56 * s), letterOffsetY(0.03 * s), barWidth(0.5 * s),
      barHeight(std::max(0.075 * s, 3.0)), barOffsetX(0.12 * s), barOffsetY(0.13 * s), shadowRadius(0.24 * s),
      shadowOffsetY(0.1 * s) {}

BrandMark::BrandMark(int size) : size_(size), geometry_(size) {
  set_halign(Gtk::Align::CENTER);
  set_valign(Gtk::Align::CENTER);
  setAccessiblyHidden(*this);
}

void BrandMark::measure_vfunc(Gtk::Orientation, int, int& minimum, int& natural, int& minimumBaseline,
                              int& naturalBaseline) const {
  minimum = natural = size_;
  minimumBaseline = naturalBaseline = -1;
}

void BrandMark::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
  drawTile(snapshot->gobj());
  drawLetter(snapshot->gobj());
  drawBar(snapshot->gobj());
}

void BrandMark::drawTile(GtkSnapshot* snapshot) const {
  const auto bounds = rectangle(0, 0, size_, size_);
  const auto tile = rounded(bounds, geometry_.cornerRadius);
  const auto shadow = rgba(QuorvelBrand::blue.withOpacity(0.16));
  gtk_snapshot_append_outset_shadow(snapshot, &tile, &shadow, 0, static_cast<float>(geometry_.shadowOffsetY),
                                    0, static_cast<float>(geometry_.shadowRadius));
  const auto fill = rgba(QuorvelBrand::control);
  gtk_snapshot_push_rounded_clip(snapshot, &tile);
  gtk_snapshot_append_color(snapshot, &fill, &bounds);
  gtk_snapshot_pop(snapshot);
  const auto edge = rgba(Color::white(0.16));
  const float widths[] = {1, 1, 1, 1};
  const GdkRGBA edges[] = {edge, edge, edge, edge};
  gtk_snapshot_append_border(snapshot, &tile, widths, edges);
}

void BrandMark::drawLetter(GtkSnapshot* snapshot) {
  const auto layout = create_pango_layout("Q");
  Pango::FontDescription font("Inter");
  font.set_absolute_size(geometry_.letterSize * Pango::SCALE);
  font.set_weight(static_cast<Pango::Weight>(900));
  layout->set_font_description(font);
  Pango::Rectangle ink, line;
  layout->get_pixel_extents(ink, line);
  const double x = (size_ - line.get_width()) / 2.0;
  const double y = (size_ - line.get_height()) / 2.0 + geometry_.letterOffsetY;
  const auto origin = GRAPHENE_POINT_INIT(static_cast<float>(x), static_cast<float>(y));
  const auto letter = rgba(Color::black());
  gtk_snapshot_save(snapshot);
  gtk_snapshot_translate(snapshot, &origin);
  gtk_snapshot_append_layout(snapshot, layout->gobj(), &letter);
  gtk_snapshot_restore(snapshot);
}

void BrandMark::drawBar(GtkSnapshot* snapshot) const {
  const auto centre = GRAPHENE_POINT_INIT(static_cast<float>(size_ / 2.0 + geometry_.barOffsetX),
                                          static_cast<float>(size_ / 2.0 + geometry_.barOffsetY));
  const auto bounds =
      rectangle(-geometry_.barWidth / 2, -geometry_.barHeight / 2, geometry_.barWidth, geometry_.barHeight);
  const auto capsule = rounded(bounds, geometry_.barHeight / 2);
  const auto start = GRAPHENE_POINT_INIT(bounds.origin.x, 0);
  const auto end = GRAPHENE_POINT_INIT(-bounds.origin.x, 0);
  const GskColorStop stops[] = {
      {0.0F, rgba(Color::black())}, {0.5F, rgba(QuorvelBrand::blue)}, {1.0F, rgba(QuorvelBrand::green)}};

  gtk_snapshot_save(snapshot);
  gtk_snapshot_translate(snapshot, &centre);
  gtk_snapshot_rotate(snapshot, static_cast<float>(barAngle));
  gtk_snapshot_push_rounded_clip(snapshot, &capsule);
  gtk_snapshot_append_linear_gradient(snapshot, &bounds, &start, &end, stops, std::size(stops));
  gtk_snapshot_pop(snapshot);
  gtk_snapshot_restore(snapshot);
}

} // namespace quorvel
