#include "console/ActivityCard.h"

#include "brand/surfaces.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "console/RecordRows.h"

namespace quorvel {
namespace {

class ActivityRow : public HStack {
 public:
  explicit ActivityRow(const ActivityItem& entry);
  void show(const ActivityItem& entry);

 private:
  Gtk::Widget* bar_;
  Gtk::Label* title_;
  Gtk::Label* timestamp_;
  Gtk::Label* detail_;
};

ActivityRow::ActivityRow(const ActivityItem& entry)
    : HStack(10, VerticalAlignment::top), bar_(Gtk::make_managed<Gtk::Box>()),
      title_(text("", {TextStyle::callout, FontWeight::medium, TextColor::ink})),
      timestamp_(text("", {TextStyle::caption2, {}, TextColor::dimmed})),
      detail_(text("", {TextStyle::caption, {}, TextColor::dimmed}, 2)) {
  bar_->add_css_class("activity-bar");
  bar_->set_size_request(7, 28);
  add({bar_, vstack(3, {hstack(defaultSpacing, {title_, hspacer(), timestamp_}), detail_})});
  show(entry);
}

void ActivityRow::show(const ActivityItem& entry) {
  setTone(*bar_, entry.tone);
  title_->set_text(entry.title);
  timestamp_->set_text(entry.timestamp);
  detail_->set_text(entry.detail);
}

} // namespace

ActivityCard::ActivityCard(WorkspaceStore& store) : VStack(0) {
  auto* entries = recordRows<VStack>(store, firstOf(store.activity, 4), made<ActivityRow>, 14);
  add({quorvelCard(vstack(14, {text("Activity", {.style = TextStyle::headline}), entries}))});
}

} // namespace quorvel
