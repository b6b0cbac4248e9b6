#include "startup/GraphicsEnvironment.h"

#include "support/Setting.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

TEST(GraphicsSettings, ScrollbarsFadeOnlyWhereGraphicsHardwareDrawsThem) {
  const tests::TemporaryFolder machine;
  const tests::Setting overlay(Gtk::Settings::get_default()->property_gtk_overlay_scrolling(), true);
  std::filesystem::create_directories(machine.path / "dev/dri/renderD128");
  GraphicsEnvironment(machine.path).spareAnimations();
  EXPECT_TRUE(overlay.property);
  std::filesystem::remove(machine.path / "dev/dri/renderD128");
  GraphicsEnvironment(machine.path).spareAnimations();
  EXPECT_FALSE(overlay.property);
}

} // namespace
} // namespace quorvel
