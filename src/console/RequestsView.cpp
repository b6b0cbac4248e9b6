#include "console/RequestsView.h"

#include "brand/SectionHeader.h"
#include "brand/StatusPill.h"
#include "brand/buttons.h"
#include "brand/cssClass.h"
#include "brand/surfaces.h"
#include "brand/text.h"
#include "brand/tone.h"
#include "console/RecordRows.h"
#include "console/trailingTexts.h"
#include "layout/WidgetPer.h"
#include "layout/accessible.h"

#include <array>
#include <gtkmm/progressbar.h>

namespace quorvel {
namespace {

/// One step of a request's path. It is reached by progress alone, whatever the status.
struct Step {
  const char* title;
  double threshold;
  AccentTone tone;
};
constexpr std::array steps{
    Step{"Found", 0.15, AccentTone::blue},
    Step{"Drafted", 0.5, AccentTone::green},
    Step{"Review", 0.75, AccentTone::gold},
    Step{"Done", 1.0, AccentTone::slate},
};

class StepPill : public VStack {
 public:
  StepPill(const char* title, bool isActive, AccentTone tone);
  void show(bool isActive);

 private:
  Gtk::Label* title_;
};

StepPill::StepPill(const char* title, bool isActive, AccentTone tone)
    : VStack(0), title_(text(title, {TextStyle::caption, FontWeight::bold})) {
  add_css_class("step-pill");
  setTone(*this, tone);
  title_->set_xalign(0.5);
  add({padded(0, 8, stretched(title_))});
  show(isActive);
}

void StepPill::show(bool isActive) {
  setColor(*title_, isActive ? TextColor::tone : TextColor::dimmed);
  setCssClass(*this, "active", isActive);
  // The eye has the colour.
  setAccessibleName(*title_, title_->get_text() + (isActive ? ", done" : ", not done yet"));
}

class RequestRow : public VStack {
 public:
  explicit RequestRow(const RequestItem& request);
  void show(const RequestItem& request);

 private:
  Gtk::Widget* head();
  Gtk::Widget* path();

  StatusPill* status_;
  Gtk::Label* source_;
  Gtk::Label* title_;
  Gtk::Label* summary_;
  Gtk::Label* agent_;
  Gtk::Label* lastUpdated_;
  Gtk::ProgressBar* progress_;
  WidgetPer<double, StepPill> steps_; ///< by the progress at which they are reached
};

RequestRow::RequestRow(const RequestItem& request)
    : VStack(0), status_(Gtk::make_managed<StatusPill>("", AccentTone::ink)),
      source_(text("", {TextStyle::caption, FontWeight::medium, TextColor::dimmed})),
      title_(text("", {TextStyle::title3, FontWeight::semibold})),
      summary_(text("", {TextStyle::callout, {}, TextColor::secondaryInk})),
      agent_(text("", {TextStyle::callout, FontWeight::medium})),
      lastUpdated_(text("", {TextStyle::caption, {}, TextColor::dimmed})),
      progress_(Gtk::make_managed<Gtk::ProgressBar>()) {
  add({quorvelCard(vstack(16, {head(), stretched(progress_), path()}))});
  show(request);
}

Gtk::Widget* RequestRow::head() {
  auto* request = vstack(6, {hstack(8, {status_, source_}), title_, summary_});
  return withTrailingTexts(request, defaultSpacing, {agent_, lastUpdated_});
}

Gtk::Widget* RequestRow::path() {
  auto* path = stretched(hstack(10, {}));
  path->setEqualWidths();
  for (const auto& [title, threshold, tone] : steps) {
    auto* pill = Gtk::make_managed<StepPill>(title, false, tone);
    steps_.emplace_back(threshold, pill);
    path->add({pill});
  }
  return path;
}

void RequestRow::show(const RequestItem& request) {
  status_->show(std::string(rawValue(request.status)), tone(request.status));
  source_->set_text(request.source);
  title_->set_text(request.title);
  summary_->set_text(request.summary);
  agent_->set_text(request.agent);
  lastUpdated_->set_text(request.lastUpdated);
  setTone(*progress_, tone(request.status));
  progress_->set_fraction(request.progress);
  setAccessibleName(*progress_, "Progress of " + request.title);
  for (const auto& [threshold, pill] : steps_)
    pill->show(request.progress >= threshold);
}

} // namespace

RequestsView::RequestsView(WorkspaceStore& store) : VStack(22) {
  auto* header =
      Gtk::make_managed<SectionHeader>("Live requests", "Work moving through agents",
                                       "The queue shows source, assigned helper, current status, and "
                                       "the path toward a held draft or completed result.");
  auto* create = button("New Request", "plus", ButtonStyle::prominent, [&store] { store.createRequest(); });
  auto* rows = lazyRecordRows(store, store.requests, {.spacing = 12}, made<RequestRow>);
  add({hstack(defaultSpacing, {header, hspacer(), create}, VerticalAlignment::bottom), rows});
}

} // namespace quorvel
