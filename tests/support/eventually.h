#pragma once

#include <chrono>
#include <glib.h>
#include <gmock/gmock.h>

namespace quorvel::tests {

/// Generous, because it is only ever waited for in full by a test that fails.
inline constexpr std::chrono::seconds patience{20};

/// Wakes the main loop again and again, for what changes without telling it.
class Ticking {
 public:
  Ticking() : id_(g_timeout_add(20, tick, nullptr)) {}
  ~Ticking() { g_source_remove(id_); }
  Ticking(const Ticking&) = delete;
  Ticking& operator=(const Ticking&) = delete;

 private:
  static gboolean tick(gpointer) { return G_SOURCE_CONTINUE; }
  guint id_;
};

/// Runs the main loop, and asks `probe` again and again, until what it says matches or the time is over; says
/// what it said last. This is how every test waits.
///   EXPECT_TRUE(eventually([&] { return client.address(); }, EndsWith("/pricing.html")));
template <class Probe, class Matcher>
testing::AssertionResult eventually(Probe probe, Matcher expected, std::chrono::seconds within = patience) {
  using Value = std::decay_t<decltype(probe())>;
  const auto matcher = testing::SafeMatcherCast<const Value&>(expected);
  const auto deadline = std::chrono::steady_clock::now() + within;
  const Ticking ticking;
  for (;;) {
    const Value value = probe();
    if (matcher.Matches(value))
      return testing::AssertionSuccess() << "it came to " << testing::PrintToString(value);
    if (std::chrono::steady_clock::now() > deadline)
      return testing::AssertionFailure() << "it stayed at " << testing::PrintToString(value) << ", and never "
                                         << testing::DescribeMatcher<const Value&>(matcher);
    g_main_context_iteration(nullptr, true);
  }
}

/// The same for a condition that is simply true or not.
template <class Condition>
testing::AssertionResult eventually(Condition condition) {
  return eventually(condition, testing::Eq(true));
}

} // namespace quorvel::tests
