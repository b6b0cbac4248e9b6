#include "console/AgentsView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/Frame.h"

#include <pango/pango.h>
#include <string>

namespace quorvel {
namespace {

/// The first two characters as a reader counts them: an emoji with its modifier or a letter with a combining
/// accent is one.
Glib::ustring monogram(const Glib::ustring& name) {
  std::vector<PangoLogAttr> boundaries(name.length() + 1);
  pango_get_log_attrs(name.data(), static_cast<int>(name.bytes()), -1, pango_language_get_default(),
                      boundaries.data(), static_cast<int>(boundaries.size()));
  std::size_t end = 0;
  for (int taken = 0; taken < 2 && end < name.length(); ++taken)
    do
      ++end;
    while (!boundaries[end].is_cursor_position);
  return name.substr(0, end);
}

Gtk::Label* factValue() {
  auto* value = text("", {TextStyle::caption, {}, TextColor::dimmed});
  value->set_xalign(1);
  value->set_justify(Gtk::Justification::RIGHT);
  return stretched(value);
}

Gtk::Widget* fact(const Glib::ustring& title, Gtk::Label* value) {
  return hstack(defaultSpacing, {text(title, {TextStyle::caption}), value}, VerticalAlignment::top);
}

class AgentCard : public VStack {
 public:
  explicit AgentCard(const AgentProfile& agent)
      : VStack(0), monogram_(text("", {TextStyle::caption, FontWeight::black, TextColor::tone})),
        badge_(tile(42, monogram_)), load_(Gtk::make_managed<StatusPill>("", agent.tone)),
        name_(text("", {TextStyle::title3, FontWeight::semibold})),
        focus_(text("", {TextStyle::callout, {}, TextColor::secondaryInk})), now_(factValue()),
        output_(factValue()), signal_(factValue()) {
    badge_->add_css_class("soft-circle");
    auto* head = hstack(defaultSpacing, {badge_, hspacer(), load_}, VerticalAlignment::top);
    auto* identity = vstack(7, {name_, focus_});
    auto* facts = vstack(10, {fact("Now", now_), fact("Output", output_), fact("Signal", signal_)});
    add({quorvelCard(vstack(16, {head, identity, divider(), facts}))});
    show(agent);
  }

  void show(const AgentProfile& agent) {
    monogram_->set_text(monogram(agent.shortName));
    setTone(*badge_, agent.tone);
    load_->show(std::string(rawValue(agent.load)), agent.tone);
    name_->set_text(agent.name);
    focus_->set_text(agent.focus);
    now_->set_text(agent.currentWork);
    output_->set_text(agent.output);
    signal_->set_text(agent.signal);
  }

 private:
  Gtk::Label* monogram_;
  Frame* badge_;
  StatusPill* load_;
  Gtk::Label* name_;
  Gtk::Label* focus_;
  Gtk::Label* now_;
  Gtk::Label* output_;
  Gtk::Label* signal_;
};

} // namespace

AgentsView::AgentsView(WorkspaceStore& store) : VStack(22) {
  add({Gtk::make_managed<SectionHeader>("Agent team", "Specialists that pick up the work",
                                        "Each helper has a bounded job, a visible status, and outputs that "
                                        "wait for review when the action matters."),
       lazyRecordRows(store, store.agents, {.spacing = 14, .minimumColumnWidth = 260}, made<AgentCard>)});
}

} // namespace quorvel
