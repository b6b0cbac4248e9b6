#include "engine/popups.h"

#include "engine/GObjectPointer.h"
#include "engine/popupPlace.h"
#include "engine/popupSize.h"
#include "engine/popupTexts.h"

namespace quorvel {
namespace {

void follow(GtkPopover* popup) {
  cutPopupTexts(popup);
  fitOnScreen(popup);
  g_signal_connect(popup, "notify::child", G_CALLBACK(cutPopupTexts), nullptr);
  g_signal_connect(popup, "show", G_CALLBACK(fitOnScreen), nullptr); // suggestions are there only now
  if (!GTK_IS_POPOVER_MENU(popup)) // which its owner has opened where the pointer is
    keepInView(popup);
}

} // namespace

void boundPopups(WebKitWebView* view) {
  const auto onChange = +[](GListModel* children, guint position, guint, guint added) {
    for (guint i = 0; i < added; ++i) {
      const GObjectPointer<GObject> child(G_OBJECT(g_list_model_get_item(children, position + i)));
      if (GTK_IS_POPOVER(child.get()))
        follow(GTK_POPOVER(child.get()));
      else
        cutQuestion(GTK_WIDGET(child.get()));
    }
  };
  auto* children = gtk_widget_observe_children(GTK_WIDGET(view));
  g_signal_connect(children, "items-changed", G_CALLBACK(onChange), nullptr);
  g_object_set_data_full(G_OBJECT(view), "quorvel-popups", children, g_object_unref);
}

} // namespace quorvel
