#include "ui/client/ModelTest.h"

namespace quorvel {

ModelTest::ModelTest() {
  server.page("/agent.html", "<title>Agent</title><h1 id=connectorsCenter>Agent workspace</h1>");
  server.page("/pricing.html", "<title>Pricing</title><h1>Plans</h1>");
  start();
}

// A page that computes for ever would keep its process, and with it whoever reads what the tests say, for 10
// s. One that is ended while it starts ends the tests, too.
ModelTest::~ModelTest() {
  if (!model)
    return;
  EXPECT_TRUE(tests::eventually([this] { return isPageThere_; }));
  webkit_web_view_terminate_web_process(webView());
}

void ModelTest::start(const std::string& name) {
  model.reset();
  model = std::make_unique<DesktopBrowserModel>(DesktopBrowserModel::Surroundings{
      .folders = {folder / name / "data", folder / name / "cache"},
      .openInSystem = [this](const std::string& address) { opened.push_back(address); },
      .showInFolder = [this](const std::string& path) { shownInFolder.push_back(path); },
      .startTimer = timer.function()});
  isPageThere_ = false;
  const auto onLoad = +[](WebKitWebView* view, WebKitLoadEvent event, ModelTest* self) {
    self->isPageThere_ = true;
    if (event == WEBKIT_LOAD_COMMITTED)
      self->document_ = webkit_web_view_get_uri(view);
  };
  g_signal_connect(webView(), "load-changed", G_CALLBACK(onLoad), this);
}

void ModelTest::show(const std::string& path) {
  model->load(server.address(path));
  waitForAddress(path);
  waitForRest();
}

void ModelTest::waitForAddress(const std::string& path) {
  const auto address = server.address(path);
  const auto isThere = [&] {
    return *model->currentURLString == address && !webkit_web_view_is_loading(webView()) && isDocument(path);
  };
  ASSERT_TRUE(tests::eventually(isThere)) << *model->currentURLString << " instead of " << address;
}

bool ModelTest::isDocument(const std::string& path) const {
  return document_.starts_with(server.address(path.substr(0, path.find_first_of("?#"))));
}

void ModelTest::waitForRest() {
  const auto rests = [&] { return !webkit_web_view_is_loading(webView()) && !model->isLoading; };
  ASSERT_TRUE(tests::eventually(rests));
  settle();
  ASSERT_TRUE(tests::eventually(rests));
}

void ModelTest::runScript(const std::string& script) {
  bool isDone = false;
  const auto onDone = +[](GObject* view, GAsyncResult* result, gpointer done) {
    g_autoptr(GError) error = nullptr;
    g_autoptr(JSCValue) value =
        webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(view), result, &error);
    EXPECT_EQ(error, nullptr) << (error ? error->message : "");
    *static_cast<bool*>(done) = true;
  };
  webkit_web_view_evaluate_javascript(webView(), script.c_str(), -1, nullptr, nullptr, nullptr, onDone,
                                      &isDone);
  ASSERT_TRUE(tests::eventually([&] { return isDone; }));
}

void ModelTest::settle() {
  // The page's process answers in order: what it was doing before is done when it has answered twice.
  if (webkit_web_view_get_uri(webView())) {
    runScript("0");
    runScript("0");
  }
  while (Glib::MainContext::get_default()->iteration(false))
    ;
}

GtkPopover* ModelTest::openPopup() const {
  auto* popup = gtk_widget_get_last_child(GTK_WIDGET(webView()));
  return GTK_IS_POPOVER(popup) && gtk_widget_get_mapped(popup) ? GTK_POPOVER(popup) : nullptr;
}

void ModelTest::spendTime() {
  using Clock = std::chrono::steady_clock;
  for (auto& [delay, watch] : watches_) {
    if (!timer.isRunning(delay) || watch.start != timer.starts(delay))
      watch = {timer.starts(delay), Clock::now()};
    else if (Clock::now() - watch.startedAt > delay / 20)
      timer.letOff(delay);
  }
}

} // namespace quorvel
