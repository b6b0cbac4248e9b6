#include "support/Looks.h"

#include "layout/stacks.h"
#include "support/Drawing.h"
#include "support/TestWindow.h"

#include <regex>
#include <set>

namespace quorvel::tests {
namespace {

bool isSpacer(Gtk::Widget& widget) {
  return typeid(widget) == typeid(Gtk::Box) && !widget.get_first_child() &&
         (widget.get_hexpand() || widget.get_vexpand()) && widget.get_css_classes().size() <= 1;
}

std::vector<Gtk::Widget*> partsOf(Gtk::Widget& whole) {
  std::vector<Gtk::Widget*> parts;
  for (auto* child = whole.get_first_child(); child; child = child->get_next_sibling())
    if (child->get_mapped() && child->get_child_visible())
      parts.push_back(child);
  return parts;
}

/// How far the parts of a stack are apart, each distance once.
std::set<int> gaps(Gtk::Widget& stack, const std::vector<Gtk::Widget*>& parts, bool isRow) {
  std::set<int> result;
  for (std::size_t i = 1; i < parts.size(); ++i) {
    const auto before = boundsIn(stack, *parts[i - 1]), after = boundsIn(stack, *parts[i]);
    result.insert(isRow ? after.get_x() - parts[i]->get_margin_start() - before.get_x() - before.get_width() -
                              parts[i - 1]->get_margin_end()
                        : after.get_y() - parts[i]->get_margin_top() - before.get_y() - before.get_height() -
                              parts[i - 1]->get_margin_bottom());
  }
  return result;
}

class Reader {
 public:
  explicit Reader(Gtk::Widget& root)
      : window_(dynamic_cast<Gtk::Window&>(*root.get_root())), drawing_(window_) {
    read(root);
  }
  std::vector<std::string> lines;

 private:
  void read(Gtk::Widget& widget) {
    readPadding(widget);
    if (isSpacer(widget))
      return readSpacer(widget);
    readGround(widget);
    readInset(widget);
    if (dynamic_cast<Gtk::Switch*>(&widget))
      return lines.push_back("switch");
    if (auto* label = dynamic_cast<Gtk::Label*>(&widget))
      return readText(widget, label->get_text());
    if (auto* image = dynamic_cast<Gtk::Image*>(&widget))
      return readSymbol(*image);
    if (auto* entry = dynamic_cast<Gtk::Entry*>(&widget))
      return readText(widget, entry->get_text());
    const auto parts = partsOf(widget);
    readStack(widget, parts);
    for (auto* part : parts)
      read(*part);
  }

  void readPadding(Gtk::Widget& widget) {
    const int top = widget.get_margin_top(), end = widget.get_margin_end(),
              bottom = widget.get_margin_bottom(), start = widget.get_margin_start();
    if (top + end + bottom + start == 0)
      return;
    auto line = "padded " + std::to_string(top == bottom && end == start ? end : top);
    if (top != bottom || end != start)
      for (const int side : {end, bottom, start})
        line += " " + std::to_string(side);
    else if (top != end)
      line += " " + std::to_string(top);
    lines.push_back(line);
  }

  void readSpacer(Gtk::Widget& widget) {
    const int least =
        std::max(widget.property_width_request().get_value(), widget.property_height_request().get_value());
    lines.push_back(least == 8 ? "spacer" : "spacer " + std::to_string(least));
  }

  void readGround(Gtk::Widget& widget) {
    graphene_rect_t bounds;
    if (!gtk_widget_compute_bounds(widget.gobj(), GTK_WIDGET(window_.gobj()), &bounds))
      throw std::runtime_error("the widget is not in its window");
    std::string line;
    for (const auto& stroke : drawing_.take(bounds))
      line += (line.empty() ? "" : ", ") + stroke;
    if (!line.empty())
      lines.push_back(line);
  }

  /// Free space that lies on the ground, and how high it makes a button.
  void readInset(Gtk::Widget& widget) {
    const auto inset = widget.get_style_context()->get_padding();
    const bool hasLeastHeight =
        widget.has_css_class("button-bordered") || widget.has_css_class("button-prominent");
    if (dynamic_cast<Gtk::Button*>(&widget))
      lines.push_back(hasLeastHeight ? "button " + std::to_string(widget.get_height()) + " high" : "button");
    if (inset.get_left() + inset.get_top() > 0)
      lines.push_back("inset " + std::to_string(inset.get_left()) + " " + std::to_string(inset.get_top()));
  }

  std::string font(Gtk::Widget& widget) {
    const auto description = widget.get_pango_context()->get_font_description();
    const auto family = description.get_family();
    return number(description.get_size() / double(PANGO_SCALE)) + " " +
           std::to_string(int(description.get_weight())) +
           (family.find("Quicksand") == family.npos ? "" : " rounded");
  }
  void readText(Gtk::Widget& widget, const std::string& text) {
    lines.push_back("\"" + text + "\" " + font(widget) + " " + colorName(inkOf(widget)));
  }
  void readSymbol(Gtk::Image& image) {
    const std::string icon = image.get_icon_name();
    static const std::regex pattern(R"((.*?)(\.(\d00))?-symbolic)");
    std::smatch parts;
    if (!std::regex_match(icon, parts, pattern))
      return;
    const auto weight = parts[3].matched ? parts[3].str() : "400";
    int minimum = 0, natural = 0, ignored = 0;
    image.measure(Gtk::Orientation::HORIZONTAL, -1, minimum, natural, ignored, ignored);
    const int side = natural - image.get_margin_start() - image.get_margin_end();
    lines.push_back("*" + parts[1].str() + " " + std::to_string(side) + " " + weight + " " +
                    colorName(inkOf(image)));
  }

  void readStack(Gtk::Widget& widget, const std::vector<Gtk::Widget*>& parts) {
    const auto* box = dynamic_cast<Gtk::Box*>(&widget);
    if (parts.size() < 2 || (!box && !dynamic_cast<Container*>(&widget)))
      return;
    if (!box)
      return readForm(widget, parts);
    const bool isRow = dynamic_cast<const HStack*>(box);
    std::string line = isRow ? "row" : "column";
    for (const int gap : gaps(widget, parts, isRow))
      line += " " + std::to_string(gap);
    lines.push_back(line + alignment(widget, parts, isRow));
  }

  /// Parts in one of several forms, or in columns: how far neighbours are apart.
  void readForm(Gtk::Widget& whole, const std::vector<Gtk::Widget*>& parts) {
    const auto first = boundsIn(whole, *parts[0]), second = boundsIn(whole, *parts[1]);
    const bool isRow = second.get_x() > first.get_x();
    lines.push_back((isRow ? "form row " : "form column ") +
                    std::to_string(isRow ? second.get_x() - first.get_x() - first.get_width()
                                         : second.get_y() - first.get_y() - first.get_height()));
  }

  /// Where parts stand that are smaller than their stack.
  std::string alignment(Gtk::Widget& stack, const std::vector<Gtk::Widget*>& parts, bool isRow) {
    for (auto* part : parts) {
      const auto bounds = boundsIn(stack, *part);
      const int before =
          isRow ? bounds.get_y() - part->get_margin_top() : bounds.get_x() - part->get_margin_start();
      const int room =
          isRow ? stack.get_height() - bounds.get_y() - bounds.get_height() - part->get_margin_bottom()
                : stack.get_width() - bounds.get_x() - bounds.get_width() - part->get_margin_end();
      if (isSpacer(*part) || std::abs(before - room) < 3)
        continue;
      if (before == 0)
        return isRow ? " top" : "";
      if (room == 0)
        return isRow ? " bottom" : " trailing";
    }
    return "";
  }

  Gtk::Window& window_;
  Drawing drawing_;
};

} // namespace

std::string lookOf(Gtk::Widget& root) {
  drawFrame(root);
  std::string look;
  for (const auto& line : Reader(root).lines)
    look += "\n" + line;
  return look + "\n";
}

bool comesToLook(Gtk::Widget& root, const std::string& look) {
  return eventually([&] { return lookOf(root) == look; });
}

} // namespace quorvel::tests
