#include "engine/CommandRunner.h"

#include "engine/engineTexts.h"
#include "engine/ownWorld.h"

#include <glibmm/main.h>
#include <utility>

namespace quorvel {
namespace {

std::string withoutFragment(const std::string& address) {
  return address.substr(0, address.find('#'));
}

bool hasFragment(const std::string& address) {
  return address.find('#') != std::string::npos;
}

/// The view's own address stays behind while it tells of another load.
std::string asTheEngineWrites(const std::string& address) {
  const GObjectPointer<WebKitURIRequest> request(webkit_uri_request_new(address.c_str()));
  return textOrNothing(webkit_uri_request_get_uri(request.get()));
}

/// Such a load ends as if it had been interrupted: nothing of it is shown, or it becomes a download.
bool endsWithoutPage(WebKitResponsePolicyDecision* response) {
  auto* answer = webkit_response_policy_decision_get_response(response);
  const auto status = webkit_uri_response_get_status_code(answer);
  auto* headers = webkit_uri_response_get_http_headers(answer);
  const char* disposition = headers ? soup_message_headers_get_one(headers, "Content-Disposition") : nullptr;
  return status == SOUP_STATUS_NO_CONTENT || status == SOUP_STATUS_RESET_CONTENT ||
         (disposition && g_ascii_strncasecmp(disposition, "attachment", 10) == 0) ||
         !webkit_response_policy_decision_is_mime_type_supported(response);
}

bool wasStopped(const GError* error) {
  return g_error_matches(error, WEBKIT_NETWORK_ERROR, WEBKIT_NETWORK_ERROR_CANCELLED);
}

bool wasInterrupted(const GError* error) {
  return g_error_matches(error, WEBKIT_POLICY_ERROR,
                         WEBKIT_POLICY_ERROR_FRAME_LOAD_INTERRUPTED_BY_POLICY_CHANGE);
}

} // namespace

CommandRunner::CommandRunner(WebKitWebView* view, TimerFunction startTimer, Owner owner)
    : view_(view), owner_(std::move(owner)), command_({startTimer, [this] { ask(); }, [this] { insist(); }}),
      network_(startTimer, {[this] { return isWaiting(); }, [this] { return owner_.isDownloading(); },
                            [this] { replacePage(); }}),
      gauge_(view_), wayBack_(view_), errorPage_(view_, std::move(startTimer)) {
  const auto onEvent =
      +[](WebKitWebView*, WebKitLoadEvent event, CommandRunner* self) { self->noteEvent(event); };
  g_signal_connect(view_, "load-changed", G_CALLBACK(onEvent), this);
  const auto onFailure = +[](WebKitWebView*, WebKitLoadEvent, const char* address, const GError* error,
                             CommandRunner* self) -> gboolean { return self->noteFailure(address, error); };
  g_signal_connect(view_, "load-failed", G_CALLBACK(onFailure), this);
  const auto onEnd = +[](CommandRunner* self) { self->command_.processEnded(); };
  g_signal_connect_swapped(view_, "web-process-terminated", G_CALLBACK(onEnd), this);
}

CommandRunner::~CommandRunner() {
  g_cancellable_cancel(question_.get());
  g_signal_handlers_disconnect_by_data(view_, this);
}

/// A process that hangs has no page to wait for.
void CommandRunner::letPass(const std::function<void()>& command) {
  if (isOverruled_)
    command();
  else
    errorPage_.letPass(command);
}

void CommandRunner::load(const std::string& address) {
  letPass([this, address] {
    requested_ = address;
    wayBack_.noteOwner();
    carryOut({WEBKIT_NAVIGATION_TYPE_OTHER, [this] { tellToLoad(); }});
  });
}

void CommandRunner::loadForPage(const std::string& address) {
  requested_ = address;
  tellToLoad();
}

void CommandRunner::tellToLoad() {
  webkit_web_view_load_uri(view_, requested_.c_str());
  owner_.onLoad();
}

void CommandRunner::reload() {
  // Before there ever was a page the engine has nothing to reload.
  if (!webkit_back_forward_list_get_current_item(webkit_web_view_get_back_forward_list(view_)))
    load(requested_);
  else
    letPass([this] { carryOut({WEBKIT_NAVIGATION_TYPE_RELOAD, [this] { webkit_web_view_reload(view_); }}); });
}

void CommandRunner::goBack() {
  letPass([this] { leaveBackwards(); });
}

void CommandRunner::leaveBackwards() {
  auto* history = webkit_web_view_get_back_forward_list(view_);
  if (auto* origin = wayBack_.target())
    leaveFor(origin);
  else
    goTo(webkit_back_forward_list_get_back_item(history), webkit_web_view_go_back);
}

/// A page that has filled the history is not asked to make way: it would go on.
void CommandRunner::leaveFor(WebKitBackForwardListItem* origin) {
  aimAt(origin);
  const Wish wish{WEBKIT_NAVIGATION_TYPE_BACK_FORWARD, [this] { goToOrigin(); }};
  if (wayBack_.isLost())
    overrule([&] { carryOut(wish); });
  else
    carryOut(wish);
}

void CommandRunner::goToOrigin() {
  if (wayBack_.isLost())
    aimAt(wayBack_.restore());
  goToTarget();
}

void CommandRunner::aimAt(WebKitBackForwardListItem* item) {
  target_ = referenceTo(item);
}

void CommandRunner::goForward() {
  letPass([this] {
    auto* history = webkit_web_view_get_back_forward_list(view_);
    goTo(webkit_back_forward_list_get_forward_item(history), webkit_web_view_go_forward);
  });
}

void CommandRunner::goTo(WebKitBackForwardListItem* neighbour, void (*go)(WebKitWebView*)) {
  if (!neighbour)
    return;
  aimAt(neighbour);
  Wish wish{WEBKIT_NAVIGATION_TYPE_BACK_FORWARD, [this] { goToTarget(); }};
  wish.begin = [this, go, onScreen = addressOf(view_)] {
    go(view_);
    if (addressOf(view_) != onScreen)
      noteTarget(addressOf(view_));
  };
  carryOut(std::move(wish));
}

/// From 2.52 on, a page that changes its address just then writes it into the item that is being gone to.
void CommandRunner::goToTarget() {
  if (webkit_back_forward_list_item_get_uri(target_.get()) == expected_)
    webkit_web_view_go_to_back_forward_list_item(view_, target_.get());
  else
    webkit_web_view_load_uri(view_, expected_.c_str());
}

/// The engine leaves out what a page has put into the history by itself, and says only where it goes.
void CommandRunner::noteTarget(const std::string& address) {
  auto* history = webkit_web_view_get_back_forward_list(view_);
  g_autoptr(GList) items = g_list_concat(webkit_back_forward_list_get_back_list(history),
                                         webkit_back_forward_list_get_forward_list(history));
  for (const GList* each = items; each; each = each->next)
    if (auto* item = WEBKIT_BACK_FORWARD_LIST_ITEM(each->data);
        address == webkit_back_forward_list_item_get_uri(item)) {
      aimAt(item);
      return;
    }
}

void CommandRunner::overrule(const std::function<void()>& command) {
  isOverruled_ = true;
  command();
  isOverruled_ = false;
}

/// It would take too long to ask the page to make way.
bool CommandRunner::isBeyondAsking() const {
  return isOverruled_ || gauge_.isFlooded() || !webkit_web_view_get_is_web_process_responsive(view_);
}

void CommandRunner::carryOut(Wish wish) {
  network_.commandGiven();
  wish_ = std::move(wish);
  command_.end();
  isAfresh_ = false;
  const auto onScreen = addressOf(view_);
  const bool wasLoading = webkit_web_view_is_loading(view_);
  const bool isBeyond = isBeyondAsking();
  if (wish_.begin)
    wish_.begin();
  else if (!isBeyond)
    wish_.carryOut();
  isRedirected_ = false;
  expected_ = destination();
  if (isBeyond) {
    insist();
    return;
  }
  staysInDocument_ = wish_.type != WEBKIT_NAVIGATION_TYPE_RELOAD && hasFragment(expected_) &&
                     withoutFragment(expected_) == withoutFragment(onScreen);
  // Where there is no page, and none on its way, none can be in the way.
  isUnopposed_ = onScreen.empty() && !wasLoading;
  if (isUnopposed_)
    return;
  command_.begin();
}

std::string CommandRunner::destination() const {
  switch (wish_.type) {
  case WEBKIT_NAVIGATION_TYPE_BACK_FORWARD:
    return webkit_back_forward_list_item_get_uri(target_.get());
  case WEBKIT_NAVIGATION_TYPE_OTHER:
    return asTheEngineWrites(requested_);
  default:
    return addressOf(view_);
  }
}

bool CommandRunner::claims(WebKitNavigationAction* action) {
  if (webkit_navigation_action_is_redirect(action))
    return isRedirected_ = true;
  const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
  const bool isOurs = webkit_navigation_action_get_navigation_type(action) == wish_.type &&
                      (wish_.type != WEBKIT_NAVIGATION_TYPE_OTHER || expected_ == address);
  if (isOurs)
    command_.accepted();
  if (isOurs && staysInDocument_)
    command_.end();
  return isOurs;
}

void CommandRunner::ask() {
  g_cancellable_cancel(question_.get());
  question_.reset(g_cancellable_new());
  askPage(view_, "location.href", question_.get(), [this](const std::string& place) { noteAnswer(place); });
}

void CommandRunner::noteAnswer(const std::string& place) {
  auto* history = webkit_web_view_get_back_forward_list(view_);
  // Between two states of one document no load is needed.
  const bool isThere = wish_.type == WEBKIT_NAVIGATION_TYPE_BACK_FORWARD &&
                       webkit_back_forward_list_get_current_item(history) == target_.get() &&
                       place == expected_;
  command_.answered(webkit_web_view_is_loading(view_), isThere);
}

void CommandRunner::replacePage() {
  command_.end(); // or it might insist itself
  insist();
}

void CommandRunner::insist() {
  // Not within the engine's own handling of what the process has said, and before the rest of that.
  Glib::signal_idle().connect_once(sigc::mem_fun(*this, &CommandRunner::startAfresh), Glib::PRIORITY_HIGH);
}

void CommandRunner::startAfresh() {
  command_.end();
  webkit_web_view_terminate_web_process(view_);
  isUnopposed_ = wish_.type != WEBKIT_NAVIGATION_TYPE_RELOAD; // which leads to wherever the page was
  isAfresh_ = true;
  wish_.carryOut();
  network_.pageReplaced();
}

void CommandRunner::giveUp() {
  isUnopposed_ = isAfresh_ = false;
  command_.end();
}

void CommandRunner::noteResponse(WebKitResponsePolicyDecision* response) {
  if (webkit_response_policy_decision_is_main_frame_main_resource(response))
    isPageless_ = endsWithoutPage(response);
}

void CommandRunner::noteEvent(WebKitLoadEvent event) {
  if (event == WEBKIT_LOAD_STARTED) {
    isPageless_ = false;
    command_.loadStarted();
  }
  if (event == WEBKIT_LOAD_COMMITTED)
    noteArrivalAt(addressOf(view_));
  // The engine's own page about an earlier failure has come in place of what was asked for meanwhile, of
  // which nothing is heard any more.
  if (event == WEBKIT_LOAD_FINISHED && addressOf(view_) == failed_ && !leadsTo(failed_) &&
      !webkit_web_view_is_loading(view_))
    command_.loadBrokenOff();
}

void CommandRunner::noteArrivalAt(const std::string& address) {
  isAfresh_ = false;
  const bool wasUnopposed = std::exchange(isUnopposed_, false);
  if (leadsTo(address))
    command_.loadCommitted(); // rather than a load of the page's that was let go before
  else if (wasUnopposed)
    wish_.carryOut(); // a page about a failure came first, or where the ended process was on its way to
}

bool CommandRunner::leadsTo(const std::string& address) const {
  return isRedirected_ || expected_.empty() || address == expected_;
}

/// By the page on screen, which stops it or goes somewhere else.
bool CommandRunner::isBrokenOff(const GError* error) const {
  return wasStopped(error) || (!isPageless_ && wasInterrupted(error));
}

bool CommandRunner::noteFailure(const std::string& address, const GError* error) {
  failed_ = address;
  if (leadsTo(failed_))
    isUnopposed_ = false;
  const bool isLost = NetworkWatch::hasLost(error) && isWaiting();
  if (!isLost && !wasStopped(error) && !wasInterrupted(error)) {
    isAfresh_ = false;
    errorPage_.expect(address);
  }
  // The page's menu has a way to stop it.
  if (isLost && isAfresh_)
    insist();
  else if (isLost || (isBrokenOff(error) && !owner_.isInPage()))
    command_.loadBrokenOff();
  else
    command_.loadFailed();
  return isLost;
}

} // namespace quorvel
