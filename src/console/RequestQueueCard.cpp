#include "console/RequestQueueCard.h"

#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "layout/accessible.h"

#include <gtkmm/progressbar.h>

namespace quorvel {
namespace {

class RequestMiniRow : public VStack {
 public:
  explicit RequestMiniRow(const RequestItem& request);
  void show(const RequestItem& request);

 private:
  Gtk::Label* title_;
  Gtk::Label* agent_;
  StatusPill* status_;
  Gtk::ProgressBar* progress_;
};

RequestMiniRow::RequestMiniRow(const RequestItem& request)
    : VStack(9), title_(singleLine("", {TextStyle::callout, FontWeight::semibold})),
      agent_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
      status_(Gtk::make_managed<StatusPill>("", AccentTone::ink)),
      progress_(Gtk::make_managed<Gtk::ProgressBar>()) {
  add({hstack(defaultSpacing, {vstack(2, {title_, agent_}), hspacer(), status_}, VerticalAlignment::top),
       stretched(progress_)});
  padded(0, 7, this);
  show(request);
}

void RequestMiniRow::show(const RequestItem& request) {
  title_->set_text(request.title);
  agent_->set_text(request.agent);
  status_->show(std::string(rawValue(request.status)), tone(request.status));
  setTone(*progress_, tone(request.status));
  progress_->set_fraction(request.progress);
  setAccessibleName(*progress_, "Progress of " + request.title);
}

} // namespace

RequestQueueCard::RequestQueueCard(WorkspaceStore& store) : VStack(0) {
  auto* open =
      button("Open", ButtonStyle::link, [&store] { store.selectedSection = WorkspaceSection::requests; });
  setAccessibleName(*open, "Open live queue");
  auto* head = hstack(defaultSpacing,
                      {text("Live queue", {TextStyle::headline, {}, TextColor::ink}), hspacer(), open});
  auto* requests = recordRows<VStack>(store, firstOf(store.requests, 3), made<RequestMiniRow>, 14);
  add({quorvelCard(vstack(14, {head, requests}))});
}

} // namespace quorvel
