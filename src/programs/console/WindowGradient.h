#pragma once

#include <gtkmm/snapshot.h>
#include <gtkmm/widget.h>
#include <memory>

namespace quorvel {

/// What the console stands on: the window's gradient from its leading corner at the top to the other one
/// below, painted once for a size. Where no graphics hardware does it, it would else be most of what a frame
/// costs.
class WindowGradient {
 public:
  /// All over the widget.
  void draw(const Gtk::Widget& widget, Gtk::Snapshot& snapshot);

 private:
  struct Look {
    int width, height, scale;
    Gtk::TextDirection direction;
    bool operator==(const Look&) const = default;
  };
  static GskRenderNode* paint(const Look& look);

  struct Unref {
    void operator()(GskRenderNode* node) const { gsk_render_node_unref(node); }
  };
  Look look_{0, 0, 0, Gtk::TextDirection::NONE};
  std::unique_ptr<GskRenderNode, Unref> painted_;
};

} // namespace quorvel
