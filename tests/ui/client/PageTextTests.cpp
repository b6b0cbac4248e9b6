#include "support/RealInput.h"
#include "ui/client/ModelTest.h"

namespace quorvel {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::Eq;
using ::testing::Lt;

/// How long the window has answered nobody, at the most, since this was made.
class LongestSilence {
 public:
  LongestSilence() : id_(g_timeout_add(10, note, this)) {}
  ~LongestSilence() { g_source_remove(id_); }
  LongestSilence(const LongestSilence&) = delete;
  LongestSilence& operator=(const LongestSilence&) = delete;

  long milliseconds() {
    note(this);
    return std::chrono::duration_cast<std::chrono::milliseconds>(longest_).count();
  }

 private:
  using Clock = std::chrono::steady_clock;

  static gboolean note(gpointer silence) {
    auto* self = static_cast<LongestSilence*>(silence);
    const auto now = Clock::now();
    self->longest_ = std::max(self->longest_, now - std::exchange(self->last_, now));
    return G_SOURCE_CONTINUE;
  }
  guint id_;
  Clock::time_point last_ = Clock::now();
  Clock::duration longest_{};
};

constexpr long bearable = 2'000; // milliseconds; where nothing is cut it is several times as long

/// What a page says outside of its own area: in tips and lists, which the toolkit lays out.
class PageTextTest : public ModelTest {
 protected:
  /// Shows a page with one thing, which fills it.
  void showThing(const std::string& thing, const std::string& script) {
    server.page("/thing.html", "<title>Thing</title><style>#thing { position: fixed; inset: 0; width: 100% }"
                               "</style>" +
                                   thing + "<script>" + script + "</script>");
    show("/thing.html");
    tests::focusOn(page());
  }
  /// One for which there is no room closes while it is drawn.
  Gtk::Widget& nextPopup() {
    const auto staysOpen = [&] {
      if (openPopup())
        tests::drawFrame(page());
      return openPopup() != nullptr;
    };
    if (!tests::eventually(staysOpen))
      throw std::runtime_error("nothing stayed open");
    return *Glib::wrap(GTK_WIDGET(openPopup()));
  }
  Gtk::TreeView& nextList() { return *tests::all<Gtk::TreeView>(nextPopup()).at(0); }
  /// What the list has drawn last.
  static std::string lastTextIn(Gtk::TreeView& list) {
    return dynamic_cast<Gtk::CellRendererText&>(*list.get_column(0)->get_first_cell())
        .property_text()
        .get_value();
  }
  /// Opens the list, of whose texts there is only the beginning, and takes what is in its middle.
  void takeFromCutList(const std::string& expectedTitle) {
    LongestSilence silence;
    tests::clickOn(page());
    auto& list = nextList();
    EXPECT_EQ(lastTextIn(list), cut);
    EXPECT_LE(gtk_widget_get_width(GTK_WIDGET(openPopup())), page().get_width());
    tests::clickOn(list);
    expectTitle(expectedTitle);
    EXPECT_THAT(silence.milliseconds(), Lt(bearable));
  }
  void expectTitle(const std::string& title) {
    EXPECT_TRUE(tests::eventually([&] { return *model->title; }, Eq(title)));
  }
  Gtk::Widget& page() { return model->webView().widget(); }

  tests::TestWindow window{page(), 600, 400};
  const std::string cut = std::string(500, 'x').append("…");
};

TEST_F(PageTextTest, ATipOfAMegabyteIsCut) {
  showThing("<p id=thing>", "thing.title = 'x'.repeat(1e6)");
  LongestSilence silence;
  EXPECT_EQ(tests::tipOf(page()), cut);
  tests::drawFrame(page());
  EXPECT_THAT(silence.milliseconds(), Lt(bearable));
}

TEST_F(PageTextTest, ATipThatCanBeReadIsShownAsItIs) {
  showThing("<p id=thing title='Größe <b> &amp;amp; Farbe'>", "");
  EXPECT_EQ(tests::tipOf(page()), "Größe <b> &amp; Farbe");
}

TEST_F(PageTextTest, ChoicesOfAMegabyteAreCutAndCanBeTaken) {
  showThing("<select id=thing><optgroup><option><option></optgroup></select>",
            "for (const each of thing) each.text = 'x'.repeat(1e6);"
            "thing.firstChild.label = 'x'.repeat(1e6); thing.selectedIndex = -1;"
            "thing.onchange = () => document.title = thing.selectedIndex");
  takeFromCutList("0");
}

TEST_F(PageTextTest, TheTipOfAChoiceIsCut) {
  showThing("<select id=thing><option>One<option>Two<option>Three</select>",
            "for (const each of thing) each.title = 'x'.repeat(1e6)");
  LongestSilence silence;
  tests::clickOn(page());
  auto& list = nextList();
  EXPECT_EQ(lastTextIn(list), "Three");
  EXPECT_EQ(tests::tipOf(list), cut);
  tests::drawFrame(page());
  EXPECT_THAT(silence.milliseconds(), Lt(bearable));
}

TEST_F(PageTextTest, LongSuggestionsAreCutAndTakenWhole) {
  // The engine suggests nothing that is much longer.
  showThing("<input id=thing list=all><datalist id=all></datalist>",
            "for (let i = 0; i < 20; ++i) all.append(new Option('', 'x'.repeat(1e5 + i)));"
            "thing.oninput = () => document.title = thing.value.length > 1e5");
  takeFromCutList("true");
}

TEST_F(PageTextTest, WhatIsOnAChoiceIsShownAsItIs) {
  showThing("<select id=thing><option title='Tea &amp; &lt;Cake'>One<optgroup label='Food &amp; <i>Drink'>"
            "</select>",
            "");
  tests::clickOn(page());
  auto& list = nextList();
  EXPECT_EQ(lastTextIn(list), "Food & <i>Drink");
  const auto rows = list.get_model();
  Glib::ustring tip;
  rows->children()[0].get_value(list.get_tooltip_column(), tip);
  EXPECT_EQ(tip, "Tea &amp; &lt;Cake") << "the toolkit takes it for markup";
}

TEST_F(PageTextTest, AChoiceOfManyLinesCanBeTaken) {
  showThing("<select id=thing><option></select>", "thing[0].label = 'x' + '\\n'.repeat(400) + 'x';"
                                                  "thing.selectedIndex = -1;"
                                                  "thing.onchange = () => document.title = 'Taken'");
  tests::clickOn(page());
  tests::clickOn(nextList());
  expectTitle("Taken");
}

TEST_F(PageTextTest, TheListOfAFieldThatIsWiderThanThePageIsNot) {
  showThing("<select id=thing style='width: 5000px'><option>One</select>", "");
  tests::clickOn(page());
  EXPECT_LE(nextPopup().get_width(), page().get_width());
}

TEST_F(PageTextTest, ALongChoiceIsTakenByKeys) {
  showThing("<select id=thing><option>One<option></select>",
            "thing[1].text = 'x'.repeat(1e6); thing.focus();"
            "thing.onchange = () => document.title = thing.selectedIndex");
  tests::pointAt(page());
  tests::strikeKey("space");
  nextList();
  tests::strikeKey("Down");
  tests::strikeKey("Return");
  expectTitle("1");
}

TEST_F(PageTextTest, ABubbleOfManyLinesStaysOpen) {
  showThing("<form><input id=thing></form>",
            "thing.setCustomValidity('x\\n'.repeat(200)); thing.onclick = () => thing.reportValidity()");
  tests::clickOn(page());
  EXPECT_THAT(tests::texts(nextPopup()), ElementsAre(EndsWith("x\nx…")));
}

TEST_F(PageTextTest, WhatAServerSaysInItsQuestionForASignInIsCut) {
  server.answer("/sign-in", [](SoupServerMessage* message) {
    soup_server_message_set_status(message, SOUP_STATUS_UNAUTHORIZED, nullptr);
    soup_message_headers_replace(soup_server_message_get_response_headers(message), "WWW-Authenticate",
                                 ("Basic realm=\"" + std::string(60'000, 'x') + "\"").c_str());
  });
  model->load(server.address("/sign-in"));
  const auto said = [&] {
    const auto all = tests::texts(page());
    return std::count_if(all.begin(), all.end(), [](const auto& text) { return text.ends_with("xx…"); });
  };
  EXPECT_TRUE(tests::eventually(said, Eq(1)));
  for (const auto& text : tests::texts(page()))
    EXPECT_LE(Glib::ustring(text).size(), 501u);
}

} // namespace
} // namespace quorvel
