// The plug-in's reading of the command line the manager builds.
#include <gtest/gtest.h>

#include "PluginArguments.h"

namespace plovix::wizard {
namespace {

TEST(PluginArgumentsTest, ReadsTheManagersFullCommandLine) {
  const ParsedArguments parsed =
      parsePluginArguments({"-m", "lpm_counter", "C:\\work\\count8.v", "-n", "-symbol", "LPM_WIDTH=8",
                            "LPM_DIRECTION=UP", "-devicefamilynull", "-x640", "-y480", "-p2", "-h4242"});
  ASSERT_TRUE(parsed.arguments) << parsed.error;
  const PluginArguments& a = *parsed.arguments;
  EXPECT_EQ(a.modulon, "lpm_counter");
  EXPECT_EQ(a.outputPath, "C:/work/count8.v");
  EXPECT_TRUE(a.newVariation);
  EXPECT_TRUE(a.symbol);
  EXPECT_TRUE(a.windowOptions);
  EXPECT_EQ(a.windowRight, 640);
  EXPECT_EQ(a.windowBottom, 480);
  EXPECT_EQ(a.managerThread, 4242);
  ASSERT_EQ(a.assignments.size(), 2u);
  EXPECT_EQ(a.assignments[1], std::make_pair(std::string("LPM_DIRECTION"), std::string("UP")));
}

TEST(PluginArgumentsTest, EditRunWithoutWindowOptions) {
  const ParsedArguments parsed =
      parsePluginArguments({"-m", "lpm_mux", "/p/m.vhd", "-symbol", "", "LPM_SIZE="});
  ASSERT_TRUE(parsed.arguments) << parsed.error;
  EXPECT_FALSE(parsed.arguments->newVariation);
  EXPECT_FALSE(parsed.arguments->windowOptions);
  ASSERT_EQ(parsed.arguments->assignments.size(), 1u);
  EXPECT_EQ(parsed.arguments->assignments[0].second, "");
}

TEST(PluginArgumentsTest, RefusesWhatItCannotPlace) {
  EXPECT_FALSE(parsePluginArguments({"-m", "lpm_counter", "-n"}).arguments);
  const ParsedArguments stray = parsePluginArguments({"/p/a.v", "8"});
  EXPECT_FALSE(stray.arguments);
  EXPECT_NE(stray.error.find("\"8\""), std::string::npos);
  EXPECT_FALSE(parsePluginArguments({"/p/a.v", "-q"}).arguments);
  EXPECT_FALSE(parsePluginArguments({"/p/a.v", "-xleft"}).arguments);
}

TEST(PluginArgumentsTest, DescriptionLiesBesideTheOutput) {
  EXPECT_EQ(descriptionPathFor("/p/count8.vhd"), "/p/count8.cnx");
  EXPECT_EQ(descriptionPathFor("/p.d/count8"), "/p.d/count8.cnx");
  EXPECT_EQ(extensionOf("/p.d/count8"), "");
  EXPECT_EQ(extensionOf("rel/x.tdf"), ".tdf");
}

}  // namespace
}  // namespace plovix::wizard
