#include "engine/LoadWatchdog.h"
#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

/// An answer that comes in pieces, each sent by the test.
class AnswerInPieces {
 public:
  AnswerInPieces(LoopbackServer& server, const std::string& path) {
    server.answer(path, [this](SoupServerMessage* message) {
      soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
      auto* headers = soup_server_message_get_response_headers(message);
      soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
      soup_message_headers_replace(headers, "Content-Type", "text/html; charset=utf-8");
      soup_server_message_pause(message);
      message_ = message;
    });
  }
  bool isAskedFor() const { return message_ != nullptr; }
  void send(const std::string& text) {
    soup_message_body_append(soup_server_message_get_response_body(message_), SOUP_MEMORY_COPY, text.data(),
                             text.size());
    soup_server_message_unpause(message_);
  }
  void end() {
    soup_message_body_complete(soup_server_message_get_response_body(message_));
    soup_server_message_unpause(message_);
  }

 private:
  SoupServerMessage* message_ = nullptr;
};

class LoadTimeoutTest : public ModelTest {
 protected:
  /// Lets as much time pass as nothing outlives that is timed at all.
  void letTimePass() {
    for (int round = 0; round < 3; ++round) {
      timer.letOff();
      settle();
    }
  }
  /// Sets off something of the page on screen that stays without an answer, and lets time pass.
  void expectToOutliveTheLimit(const std::string& path, const std::string& start) {
    AnswerInPieces answer(server, path);
    runScript(start);
    ASSERT_TRUE(tests::eventually([&] { return answer.isAskedFor(); }));
    letTimePass();
    answer.send("<title>Late</title>");
    answer.end();
    EXPECT_TRUE(tests::eventually([&] { return *model->title == "Late"; })) << *model->title;
  }
};

TEST_F(LoadTimeoutTest, AServerThatSaysNothingEndsTheLoadingStateAfterThirtySeconds) {
  show("/agent.html");
  EXPECT_FALSE(timer.isRunning()) << "nothing is loading";
  server.silence("/silent.html");
  model->load(server.address("/silent.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/silent.html") > 0 && *model->isLoading; }));
  ASSERT_TRUE(timer.isRunning());
  timer.letOff();
  waitForRest();
  EXPECT_EQ(*model->currentURLString, server.address("/agent.html")) << "the page that is still on screen";
}

TEST_F(LoadTimeoutTest, APageThatStillGrowsWhenThirtySecondsAreOverIsWaitedFor) {
  show("/agent.html");
  AnswerInPieces page(server, "/slow.html");
  model->load(server.address("/slow.html"));
  ASSERT_TRUE(tests::eventually([&] { return page.isAskedFor(); }));
  page.send("<title>Slow</title>" + std::string(4000, 'x'));
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "Slow"; }));
  for (int round = 0; round < 3; ++round) {
    page.send("<script>document.title = 'round " + std::to_string(round) + "'</script>");
    ASSERT_TRUE(tests::eventually([&] { return *model->title == "round " + std::to_string(round); }));
    settle();
    ASSERT_TRUE(timer.isRunning());
    timer.letOff();
    EXPECT_TRUE(tests::eventually([&] { return timer.isRunning(); })) << "round " << round;
    EXPECT_TRUE(webkit_web_view_is_loading(webView()));
  }
  page.end();
  waitForRest();
  EXPECT_FALSE(timer.isRunning());
}

TEST_F(LoadTimeoutTest, APageThatFallsSilentHalfWayEndsTheLoadingState) {
  show("/agent.html");
  AnswerInPieces page(server, "/slow.html");
  model->load(server.address("/slow.html"));
  ASSERT_TRUE(tests::eventually([&] { return page.isAskedFor(); }));
  page.send("<title>Half</title>" + std::string(4000, 'x'));
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "Half" && *model->isLoading; }));
  settle();
  timer.letOff(); // the page has grown since it began
  ASSERT_TRUE(tests::eventually([&] { return timer.isRunning(); }));
  timer.letOff();
  waitForRest();
  EXPECT_EQ(*model->currentURLString, server.address("/slow.html"));
}

TEST_F(LoadTimeoutTest, APageThatALinkLeadsToMayTakeItsTime) {
  server.page("/links.html", "<a id=a href=/late.html>x</a>");
  show("/links.html");
  expectToOutliveTheLimit("/late.html", "a.click()");
}

TEST_F(LoadTimeoutTest, AFormThatIsPostedMayTakeItsTime) {
  server.page("/form.html", "<form id=f method=post action=/late.html><input name=a value=b></form>");
  show("/form.html");
  expectToOutliveTheLimit("/late.html", "f.submit()");
}

TEST_F(LoadTimeoutTest, AFormThatIsPostedWhileThePageStillLoadsMayTakeItsTime) {
  server.silence("/image.png");
  server.page("/form.html",
              "<title>Form</title><form id=f method=post action=/late.html></form><img src=/image.png>");
  model->load(server.address("/form.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/image.png") > 0 && *model->title == "Form"; }));
  expectToOutliveTheLimit("/late.html", "f.submit()");
}

TEST_F(LoadTimeoutTest, AnUploadOfThePageMayTakeItsTime) {
  show("/agent.html");
  expectToOutliveTheLimit("/upload",
                          "fetch('/upload', {method: 'POST', body: 'x'.repeat(1e6)}).then(r => r.text())"
                          ".then(() => { document.title = 'Late' }); 0");
}

TEST_F(LoadTimeoutTest, NoAnswerInFlightIsTouchedOnAPageOfWhichAnImageHangs) {
  server.silence("/image.png");
  server.page("/hanging.html", "<title>Hanging</title><img src=/image.png>");
  model->load(server.address("/hanging.html"));
  ASSERT_TRUE(
      tests::eventually([&] { return server.count("/image.png") > 0 && *model->title == "Hanging"; }));
  expectToOutliveTheLimit("/stream", "fetch('/stream').then(r => r.text())"
                                     ".then(() => { document.title = 'Late' }); 0");
  EXPECT_TRUE(model->isLoading) << "the image is still waited for";
}

TEST_F(LoadTimeoutTest, WhatAPageLoadsBesidesDoesNotCountForItsRequest) {
  show("/agent.html");
  server.page("/beat", "");
  AnswerInPieces page(server, "/half.html");
  model->load(server.address("/half.html"));
  ASSERT_TRUE(tests::eventually([&] { return page.isAskedFor(); }));
  page.send("<title>Half</title><script>setInterval(() => { new Image().src = '/beat?' + Math.random() }, 20)"
            "</script>" +
            std::string(4000, 'x'));
  ASSERT_TRUE(tests::eventually([&] { return *model->title == "Half"; }));
  settle();
  timer.letOff(); // the page has grown since it began
  ASSERT_TRUE(tests::eventually([&] { return timer.isRunning(); }));
  const int starts = timer.starts(), beats = server.count("/beat");
  ASSERT_TRUE(tests::eventually([&] { return server.count("/beat") > beats + 5; }));
  EXPECT_EQ(timer.starts(), starts);
  timer.letOff();
  EXPECT_TRUE(tests::eventually([&] { return !model->isLoading; }));
}

TEST_F(LoadTimeoutTest, APageThatComputesForEverEndsTheLoadingState) {
  server.page("/hang.html",
              "<title>Hang</title><script>navigator.sendBeacon('/armed'); while (true) {}</script>");
  model->load(server.address("/hang.html"));
  ASSERT_TRUE(tests::eventually([&] { return server.count("/armed") > 0 && isDocument("/hang.html"); }));
  EXPECT_TRUE(tests::eventually([&] { return *model->isLoading; }));
  timer.letOff();
  ASSERT_TRUE(tests::eventually([&] { return timer.isRunning(LoadWatchdog::answerLimit); }));
  timer.letOff(LoadWatchdog::answerLimit);
  EXPECT_TRUE(tests::eventually([&] { return !model->isLoading; }));
}

/// A server that lets only those in who say who they are, and a question for it that is still open.
class SignInTimeoutTest : public LoadTimeoutTest {
 protected:
  void SetUp() override {
    server.answer("/private.html", [](SoupServerMessage* message) {
      const auto* said =
          soup_message_headers_get_one(soup_server_message_get_request_headers(message), "Authorization");
      auto* headers = soup_server_message_get_response_headers(message);
      const std::string body = said ? "<title>Private</title>" : "<title>Nobody</title>";
      soup_server_message_set_status(message, said ? SOUP_STATUS_OK : SOUP_STATUS_UNAUTHORIZED, nullptr);
      soup_message_headers_replace(headers, "WWW-Authenticate", "Basic realm=\"Owners\"");
      soup_server_message_set_response(message, "text/html", SOUP_MEMORY_COPY, body.data(), body.size());
    });
    const auto onQuestion =
        +[](WebKitWebView*, WebKitAuthenticationRequest* asked, SignInTimeoutTest* self) -> gboolean {
      self->question.reset(WEBKIT_AUTHENTICATION_REQUEST(g_object_ref(asked)));
      return FALSE; // the engine's own dialog
    };
    g_signal_connect(webView(), "authenticate", G_CALLBACK(onQuestion), this);
  }

  GObjectPointer<WebKitAuthenticationRequest> question;
};

TEST_F(SignInTimeoutTest, NoTimerTakesTheQuestionAway) {
  show("/agent.html");
  model->load(server.address("/private.html"));
  ASSERT_TRUE(tests::eventually([&] { return question != nullptr; }));
  letTimePass();
  for (const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
       std::chrono::steady_clock::now() < end;) {
    spendTime(); // as long as nothing that the owner asks for takes, twenty times as fast
    Glib::MainContext::get_default()->iteration(false);
  }
  std::unique_ptr<WebKitCredential, decltype(&webkit_credential_free)> credential(
      webkit_credential_new("owner", "secret", WEBKIT_CREDENTIAL_PERSISTENCE_NONE), webkit_credential_free);
  webkit_authentication_request_authenticate(question.get(), credential.get());
  EXPECT_TRUE(tests::eventually([&] { return *model->title; }, ::testing::Eq("Private")));
  EXPECT_EQ(server.count("/private.html"), 2);
}

} // namespace
} // namespace quorvel
