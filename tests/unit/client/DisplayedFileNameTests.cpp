#include "client/displayedFileName.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(DisplayedFileName, APlainNameIsShownAsItIs) {
  EXPECT_EQ(displayedFileName("report (1).pdf"), "report (1).pdf");
}

TEST(DisplayedFileName, TheKindOfFileStaysAtTheEndWhateverDirectionTheLettersHave) {
  EXPECT_EQ(displayedFileName("\u05D0\u05D1gpj.exe"), "\u200E\u2068\u05D0\u05D1gpj\u2069.exe");
  EXPECT_EQ(displayedFileName("\u05D0\u05D1"), "\u200E\u2068\u05D0\u05D1\u2069");
}

} // namespace
} // namespace quorvel
