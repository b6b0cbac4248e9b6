#include "console/RequestQueueCard.h"

#include "brand/StatusPill.h"
#include "brand/card.h"
#include "brand/text.h"
#include "brand/tone.h"

#include <gtkmm/progressbar.h>
#include <ranges>

namespace quorvel {

constexpr int shownRequests = 3;

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
}

RequestQueueCard::RequestQueueCard(Action open)
    : VStack(0), list_(vstack(14, {})), rows_(*list_, [](const RequestItem& request) {
        return stretched(Gtk::make_managed<RequestMiniRow>(request));
      }) {
  applyCardStyle(*this);
  auto* head = hstack(defaultSpacing, {text("Live queue", {TextStyle::headline, {}, TextColor::ink}),
                                       hspacer(), button("Open", ButtonStyle::link, std::move(open))});
  add({padded(18, stretched(vstack(14, {head, stretched(list_)})))});
}

void RequestQueueCard::show(const RecordList<RequestItem>& requests) {
  rows_.show(requests | std::views::take(shownRequests));
  list_->set_visible(!requests.empty());
}

} // namespace quorvel
