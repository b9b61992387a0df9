#include <gtest/gtest.h>

#include "shell/about_text.h"
#include "shell/startup.h"

namespace veltrix {
namespace {

TEST(ShellStartup, LogDirectoryIsJoinedWithOneSeparator) {
  EXPECT_EQ(LogDirectoryPath("/home/user"), "/home/user/Logs");
  EXPECT_EQ(LogDirectoryPath("/home/user/"), "/home/user/Logs");
  EXPECT_EQ(LogDirectoryPath("/"), "/Logs");
}

TEST(ShellStartup, WindowPlacementLeavesTheMargins) {
  EXPECT_EQ(MainWindowPlacement(1280, 800), (WindowPlacement{15, 15, 1250, 740}));
  EXPECT_EQ(MainWindowPlacement(1024, 768), (WindowPlacement{15, 15, 994, 708}));
  EXPECT_EQ(MainWindowPlacement(10, 10), (WindowPlacement{15, 15, 1, 1}));  // never negative
}

TEST(ShellAbout, LicenceJoinsItsThreeStringsInOrder) {
  const std::string text = LicenceText();
  const auto first = text.find("LICENCE AGREEMENT");
  const auto second = text.find("You may not sell");
  const auto third = text.find("provided as is");
  EXPECT_EQ(first, 0u);
  EXPECT_LT(first, second);
  EXPECT_LT(second, third);
}

}  // namespace
}  // namespace veltrix
