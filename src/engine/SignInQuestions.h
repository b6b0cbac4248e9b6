#pragma once

#include <vector>
#include <webkit/webkit.h>

namespace quorvel {

/// The questions for a sign-in that servers have the engine ask over a page. They go with the page: by itself
/// the engine takes the last one away, and all others stay over whatever comes next. The view has to outlive
/// this.
class SignInQuestions {
 public:
  explicit SignInQuestions(WebKitWebView* view);
  ~SignInQuestions();
  SignInQuestions(const SignInQuestions&) = delete;
  SignInQuestions& operator=(const SignInQuestions&) = delete;

 private:
  void note(WebKitAuthenticationRequest* question);
  static void forget(gpointer self, GObject* question);
  void cancelAll();

  WebKitWebView* view_;
  std::vector<WebKitAuthenticationRequest*> open_; // the engine's, which lets go of each that is answered
};

} // namespace quorvel
