#include "support/Drawing.h"

#include <array>
#include <cmath>
#include <gtkmm/snapshot.h>
#include <gtkmm/widgetpaintable.h>

namespace quorvel::tests {
namespace {

struct Name {
  const char* name;
  Color color;
};
constexpr std::array names{
    Name{"white", {1, 1, 1}},
    Name{"black", {0, 0, 0}},
    Name{"background", {0.008, 0.009, 0.010}},
    Name{"panel", {0.055, 0.056, 0.058}},
    Name{"raised", {0.086, 0.087, 0.090}},
    Name{"control", {0.960, 0.960, 0.955}},
    Name{"secondary", {0.720, 0.720, 0.735}},
    Name{"muted", {0.455, 0.460, 0.485}},
    Name{"green", {0.278, 0.902, 0.627}},
    Name{"blue", {0.287, 0.604, 1.000}},
    Name{"clay", {0.815, 0.514, 0.410}},
    Name{"gold", {0.902, 0.720, 0.282}},
    Name{"mint", {0.45, 0.74, 0.60}},
    Name{"slate", {0.35, 0.40, 0.46}},
};

std::string nameOf(const GdkRGBA& color, double opacity) {
  return colorName({color.red, color.green, color.blue, color.alpha * opacity});
}

bool isSame(const graphene_rect_t& a, const graphene_rect_t& b) {
  const auto isNear = [](float x, float y) { return std::abs(x - y) < 0.51F; };
  return isNear(a.origin.x, b.origin.x) && isNear(a.origin.y, b.origin.y) &&
         isNear(a.size.width, b.size.width) && isNear(a.size.height, b.size.height);
}

double radiusOf(const GskRoundedRect& shape) {
  return shape.corner[0].width;
}

std::string shape(double radius, const graphene_rect_t& place) {
  if (radius == 0)
    return "";
  if (2 * radius >= std::min(place.size.width, place.size.height) - 0.01F)
    return " capsule";
  return " round " + number(radius);
}

std::string gradient(GskRenderNode* node, double opacity) {
  std::string look = "gradient";
  const auto count = gsk_linear_gradient_node_get_n_color_stops(node);
  const auto* stops = gsk_linear_gradient_node_get_color_stops(node, nullptr);
  for (gsize i = 0; i < count; ++i)
    look += " " + nameOf(stops[i].color, opacity);
  const auto *start = gsk_linear_gradient_node_get_start(node), *end = gsk_linear_gradient_node_get_end(node);
  look += end->x > start->x ? " rightwards" : end->x < start->x ? " leftwards" : "";
  return look + (end->y > start->y ? " downwards" : end->y < start->y ? " upwards" : "");
}

std::string innerLine(GskRenderNode* node, double opacity) {
  const auto spread = gsk_inset_shadow_node_get_spread(node), dy = gsk_inset_shadow_node_get_dy(node);
  std::string look = dy < 0 ? "line below" : "line";
  if (const auto width = spread + std::abs(dy); width != 1)
    look += " of " + number(width);
  return look + " " + nameOf(*gsk_inset_shadow_node_get_color(node), opacity);
}

std::string shadow(GskRenderNode* node, double opacity) {
  return "shadow " + nameOf(*gsk_outset_shadow_node_get_color(node), opacity) + " " +
         number(gsk_outset_shadow_node_get_dx(node)) + " " + number(gsk_outset_shadow_node_get_dy(node)) +
         " " + number(gsk_outset_shadow_node_get_blur_radius(node));
}

std::string border(GskRenderNode* node, double opacity) {
  const auto width = gsk_border_node_get_widths(node)[0];
  return "line " + (width == 1 ? "" : "of " + number(width) + " ") +
         nameOf(gsk_border_node_get_colors(node)[0], opacity);
}

} // namespace

std::string number(double value) {
  auto digits = std::to_string(std::round(value * 1000) / 1000);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.')
    digits.pop_back();
  return digits;
}

Drawing::Drawing(Gtk::Window& window) {
  const auto paintable = Gtk::WidgetPaintable::create(window);
  const auto snapshot = Gtk::Snapshot::create();
  paintable->snapshot(snapshot, window.get_width(), window.get_height());
  auto* node = gtk_snapshot_to_node(snapshot->gobj());
  add(node, {0, 0}, 0, 1);
  gsk_render_node_unref(node);
  strokes_.erase(strokes_.begin()); // the window's own ground, which what fills the window lies on
}

void Drawing::add(const graphene_rect_t& place, const graphene_point_t& origin, std::string look) {
  auto moved = place;
  moved.origin.x += origin.x;
  moved.origin.y += origin.y;
  strokes_.push_back({moved, std::move(look)});
}

void Drawing::add(GskRenderNode* node, const graphene_point_t& origin, double radius, double opacity) {
  graphene_rect_t bounds;
  gsk_render_node_get_bounds(node, &bounds);
  switch (gsk_render_node_get_node_type(node)) {
  case GSK_CONTAINER_NODE:
    for (guint i = 0; i < gsk_container_node_get_n_children(node); ++i)
      add(gsk_container_node_get_child(node, i), origin, radius, opacity);
    break;
  case GSK_TRANSFORM_NODE: {
    graphene_point_t moved;
    gsk_transform_transform_point(gsk_transform_node_get_transform(node), graphene_point_zero(), &moved);
    add(gsk_transform_node_get_child(node), {origin.x + moved.x, origin.y + moved.y}, radius, opacity);
    break;
  }
  case GSK_OPACITY_NODE:
    add(gsk_opacity_node_get_child(node), origin, radius, opacity * gsk_opacity_node_get_opacity(node));
    break;
  case GSK_CLIP_NODE:
    add(gsk_clip_node_get_child(node), origin, 0, opacity);
    break;
  case GSK_ROUNDED_CLIP_NODE:
    add(gsk_rounded_clip_node_get_child(node), origin, radiusOf(*gsk_rounded_clip_node_get_clip(node)),
        opacity);
    break;
  case GSK_DEBUG_NODE:
    add(gsk_debug_node_get_child(node), origin, radius, opacity);
    break;
  case GSK_COLOR_NODE:
    add(bounds, origin, "ground " + nameOf(*gsk_color_node_get_color(node), opacity) + shape(radius, bounds));
    break;
  case GSK_LINEAR_GRADIENT_NODE:
    add(bounds, origin, gradient(node, opacity));
    break;
  case GSK_INSET_SHADOW_NODE:
    add(gsk_inset_shadow_node_get_outline(node)->bounds, origin, innerLine(node, opacity));
    break;
  case GSK_OUTSET_SHADOW_NODE:
    add(gsk_outset_shadow_node_get_outline(node)->bounds, origin, shadow(node, opacity));
    break;
  case GSK_BORDER_NODE: {
    const auto* outline = gsk_border_node_get_outline(node);
    add(outline->bounds, origin, border(node, opacity) + shape(radiusOf(*outline), outline->bounds));
    break;
  }
  default: // texts, symbols and what a widget draws by hand
    break;
  }
}

std::vector<std::string> Drawing::take(const graphene_rect_t& place) {
  std::vector<std::string> looks;
  for (auto& stroke : strokes_)
    if (!stroke.look.empty() && isSame(stroke.place, place))
      looks.push_back(std::exchange(stroke.look, ""));
  return looks;
}

std::string colorName(const Color& color) {
  const auto isNear = [](double a, double b) { return std::abs(a - b) < 0.0008; };
  std::string name = number(color.red) + ":" + number(color.green) + ":" + number(color.blue);
  for (const auto& known : names)
    if (isNear(known.color.red, color.red) && isNear(known.color.green, color.green) &&
        isNear(known.color.blue, color.blue))
      name = known.name;
  return color.alpha == 1 ? name : name + "/" + number(color.alpha);
}

} // namespace quorvel::tests
