#include "startup/GraphicsEnvironment.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtk/gtk.h>

namespace quorvel {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::Not;
using Variable = GraphicsEnvironment::Variable;

const std::vector<Variable> withoutGl{{"GDK_DEBUG", "gl-disable:vulkan-disable"},
                                      {"GSK_RENDERER", "cairo"},
                                      {"WEBKIT_DISABLE_COMPOSITING_MODE", "1"},
                                      {"MESA_SHADER_CACHE_DISABLE", "true"}};
const Variable plainRenderer{"WEBKIT_DISABLE_DMABUF_RENDERER", "1"};

/// A machine's `dev`, `proc` and `sys` in a folder of the test's.
struct GraphicsEnvironmentTest : ::testing::Test {
  GraphicsEnvironmentTest() {
    for (const auto* name : {"GDK_DEBUG", "GDK_DISABLE", "GSK_RENDERER", "WEBKIT_DISABLE_COMPOSITING_MODE",
                             "MESA_SHADER_CACHE_DISABLE", "WEBKIT_DISABLE_DMABUF_RENDERER"})
      g_unsetenv(name);
  }

  void addFile(const std::string& path) {
    fs::create_directories((root / path).parent_path());
    std::ofstream(root / path) << "present";
  }
  std::vector<Variable> variables(unsigned toolkit = 8) const {
    return GraphicsEnvironment(root, toolkit).variables();
  }

  const tests::TemporaryFolder temporary;
  const fs::path root = temporary.path;
};

TEST_F(GraphicsEnvironmentTest, AMachineWithoutARenderNodeHasGlSwitchedOff) {
  EXPECT_THAT(variables(), ElementsAreArray(withoutGl));
}

TEST_F(GraphicsEnvironmentTest, ANewerToolkitIsToldSoInItsOwnWords) {
  EXPECT_THAT(variables(14), ElementsAreArray(withoutGl));
  for (const unsigned toolkit : {16U, 18U}) {
    EXPECT_THAT(variables(toolkit), Contains(Variable{"GDK_DISABLE", "gl:vulkan"})) << toolkit;
    EXPECT_THAT(variables(toolkit), Not(Contains(Field(&Variable::name, "GDK_DEBUG")))) << toolkit;
  }
}

TEST_F(GraphicsEnvironmentTest, TheToolkitIsTheOneThatRuns) {
  EXPECT_EQ(GraphicsEnvironment(root).variables(), variables(gtk_get_minor_version()));
}

TEST_F(GraphicsEnvironmentTest, AScreenThatOnlyShowsPicturesIsNoRenderNode) {
  addFile("dev/dri/card0");
  EXPECT_THAT(variables(), ElementsAreArray(withoutGl));
}

TEST_F(GraphicsEnvironmentTest, AMachineWithARenderNodeKeepsGl) {
  addFile("dev/dri/renderD128");
  EXPECT_THAT(variables(), IsEmpty());
}

TEST_F(GraphicsEnvironmentTest, NvidiasDriverHasTheAcceleratedPageRendererSwitchedOff) {
  addFile("dev/dri/renderD128");
  addFile("proc/driver/nvidia/version");
  EXPECT_THAT(variables(), ElementsAre(plainRenderer));
}

TEST_F(GraphicsEnvironmentTest, NvidiasDriverIsAlsoKnownByItsModule) {
  addFile("dev/dri/renderD129");
  addFile("sys/module/nvidia/refcnt");
  EXPECT_THAT(variables(), ElementsAre(plainRenderer));
}

TEST_F(GraphicsEnvironmentTest, WhatTheMachineCallsForIsSet) {
  addFile("proc/driver/nvidia/version");
  GraphicsEnvironment(root, 8).apply();
  EXPECT_STREQ(g_getenv("GDK_DEBUG"), "gl-disable:vulkan-disable");
  EXPECT_STREQ(g_getenv("GDK_DISABLE"), nullptr);
  EXPECT_STREQ(g_getenv("GSK_RENDERER"), "cairo");
  EXPECT_STREQ(g_getenv("WEBKIT_DISABLE_DMABUF_RENDERER"), "1");
}

TEST_F(GraphicsEnvironmentTest, WhatTheUserHasSetIsLeftAlone) {
  addFile("proc/driver/nvidia/version");
  g_setenv("GDK_DEBUG", "frames", true);
  g_setenv("GDK_DISABLE", "dmabuf", true);
  g_setenv("GSK_RENDERER", "gl", true);
  g_setenv("WEBKIT_DISABLE_DMABUF_RENDERER", "", true);
  for (const unsigned toolkit : {8U, 16U})
    GraphicsEnvironment(root, toolkit).apply();
  EXPECT_STREQ(g_getenv("GDK_DEBUG"), "frames");
  EXPECT_STREQ(g_getenv("GDK_DISABLE"), "dmabuf");
  EXPECT_STREQ(g_getenv("GSK_RENDERER"), "gl");
  EXPECT_STREQ(g_getenv("WEBKIT_DISABLE_DMABUF_RENDERER"), "") << "an empty value is the user's, too";
}

} // namespace
} // namespace quorvel
