#pragma once

#include <chrono>
#include <glib.h>
#include <gmock/gmock.h>

namespace quorvel::e2e {

/// Generous, because it is only ever waited for in full by a test that fails.
inline constexpr std::chrono::seconds patience{20};

/// Asks `probe` again and again until what it says matches, or patience ends; says what it said last.
///   EXPECT_TRUE(eventually([&] { return client.address(); }, EndsWith("/pricing.html")));
template <class Probe, class Matcher>
testing::AssertionResult eventually(Probe probe, Matcher expected) {
  using Value = std::decay_t<decltype(probe())>;
  const auto matcher = testing::SafeMatcherCast<const Value&>(expected);
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (;;) {
    const Value value = probe();
    if (matcher.Matches(value))
      return testing::AssertionSuccess() << "it came to " << testing::PrintToString(value);
    if (std::chrono::steady_clock::now() > deadline)
      return testing::AssertionFailure() << "it stayed at " << testing::PrintToString(value) << ", and never "
                                         << testing::DescribeMatcher<const Value&>(matcher);
    g_usleep(20'000);
  }
}

/// The same for a condition that is simply true or not.
template <class Condition>
testing::AssertionResult eventually(Condition condition) {
  return eventually(condition, testing::Eq(true));
}

} // namespace quorvel::e2e
