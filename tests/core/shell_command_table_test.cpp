#include <gtest/gtest.h>

#include <set>
#include <string>

#include "resources/strings.h"
#include "shell/command_enabling.h"
#include "shell/command_table.h"
#include "shell/session_commands.h"
#include "support/fake_ports.h"

namespace veltrix {
namespace {

struct CommandTexts {
  int id;
  const char* description;
  const char* tooltip;  // empty: not on the toolbar
};

class CommandTextsTest : public ::testing::TestWithParam<CommandTexts> {};

TEST_P(CommandTextsTest, DescriptionAndTooltipComeFromTheStringTable) {
  const CommandTexts& c = GetParam();
  EXPECT_EQ(CommandDescription(c.id), c.description);
  EXPECT_EQ(CommandTooltip(c.id), c.tooltip);
  EXPECT_NE(FindCommand(c.id), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    AllCommands, CommandTextsTest,
    ::testing::Values(CommandTexts{1010, "Creates a new document", "New"},
                      CommandTexts{1020, "Opens an existing document", "Open"},
                      CommandTexts{1030, "Saves the active document", "Save"},
                      CommandTexts{1040, "Saves the active document with a new name", ""},
                      CommandTexts{1090, "Quites the application", ""},
                      CommandTexts{1110, "Configure the terminal settings", "Configure"},
                      CommandTexts{1210, "Download the current settings to the terminal",
                                   "Download"},
                      CommandTexts{1220, "Download the current program to the terminal", ""},
                      CommandTexts{1310, "Capture current screen", "Capture"},
                      CommandTexts{1320, "Start Capture", "Start Capture"},
                      CommandTexts{1330, "Stop capture screen", "Stop Capture"},
                      CommandTexts{1340, "Connect to host", "Connect"},
                      CommandTexts{1350, "Disconnect", "Disconnect"},
                      CommandTexts{1910, "Copyright information", ""}));

TEST(CommandTable, ApplicationStringsAndLicence) {
  EXPECT_EQ(StringResource(1001), "Veltrix");
  EXPECT_EQ(StringResource(1002), "Veltrix - TN5250");
  for (int id : {8888, 8889, 8890}) EXPECT_FALSE(StringResource(id).empty()) << id;
}

TEST(CommandTable, MenusListEveryCommandOnceInOrder) {
  std::string layout;
  std::set<int> seen;
  for (const MenuDef& menu : kMenus) {
    layout += std::string(menu.title) + ":";
    for (int id : menu.items) {
      if (id == kSeparator) {
        layout += " -";
        continue;
      }
      EXPECT_TRUE(seen.insert(id).second) << id;
      layout += " " + std::to_string(id);
    }
    layout += "\n";
  }
  EXPECT_EQ(layout,
            "&File: 1010 1020 1030 1040 - 1090\n"
            "&Utilities: 1110 1210 1220\n"
            "&Telnet: 1340 1350 - 1320 1310 1330\n"
            "&Help: 1910\n");
  EXPECT_EQ(seen.size(), kCommands.size());
}

TEST(CommandTable, MenuTextsSplitIntoLabelAndShortcut) {
  EXPECT_EQ(MenuLabel("&New\tCtrl+N"), "&New");
  EXPECT_EQ(MenuShortcut("&New\tCtrl+N"), "Ctrl+N");
  EXPECT_EQ(MenuLabel("Capture"), "Capture");
  EXPECT_EQ(MenuShortcut("Capture"), "");
  std::set<std::string> shortcuts;
  for (const CommandDef& c : kCommands) {
    if (!MenuShortcut(c.menu_text).empty())
      shortcuts.insert(std::string(MenuShortcut(c.menu_text)));
  }
  EXPECT_EQ(shortcuts, (std::set<std::string>{"Ctrl+N", "Ctrl+O", "Ctrl+S", "Alt+F4", "Ctrl+C",
                                              "Ctrl+D", "Ctrl+P"}));
}

TEST(CommandTable, ToolbarHasFourteenPositionsWithTooltips) {
  std::string layout;
  for (const ToolButtonDef& b : kToolbar) {
    layout += b.command == kSeparator ? "|" : " " + std::string(CommandTooltip(b.command)) + " ";
    EXPECT_EQ(b.command == kSeparator, b.image == ToolImage::kNone);
  }
  EXPECT_EQ(layout,
            "| New  Open  Save | Configure  Download | Connect  Disconnect "
            "| Start Capture  Capture  Stop Capture ");
}

// ---- enabling ----------------------------------------------------------------------------

std::string Row(const CommandEnabling& e) {
  std::string row;
  for (bool on : {e.connect, e.disconnect, e.start_capture, e.capture, e.stop_capture})
    row += on ? '1' : '0';
  return row;
}

TEST(CommandEnabling, FollowsTheSessionRows) {
  CommandEnabling e;
  EXPECT_EQ(Row(e), "10000");  // start-up
  e.EnableConnectionCommands(true);
  e.EnableCaptureCommands(false);
  EXPECT_EQ(Row(e), "01100");  // connected
  e.EnableCaptureCommands(true);
  EXPECT_EQ(Row(e), "01011");  // capturing
  e.EnableCaptureCommands(false);
  EXPECT_EQ(Row(e), "01100");  // after Stop Capture
  e.EnableConnectionCommands(false);
  EXPECT_EQ(Row(e), "10000");  // after Disconnect
}

TEST(CommandEnabling, YesOnlyActsFromTheMatchingState) {
  CommandEnabling e;
  e.EnableConnectionCommands(true);
  EXPECT_EQ(Row(e), "01111");
  e.EnableCaptureCommands(false);
  e.EnableConnectionCommands(true);  // Connect is off: nothing changes
  EXPECT_EQ(Row(e), "01100");
  e.EnableCaptureCommands(true);
  e.EnableCaptureCommands(true);  // Start Capture is off: nothing changes
  EXPECT_EQ(Row(e), "01011");
  EXPECT_TRUE(e.IsEnabled(kCmdCapture));
  EXPECT_FALSE(e.IsEnabled(kCmdConnect));
  EXPECT_TRUE(e.IsEnabled(kCmdNew));
}

// ---- session commands --------------------------------------------------------------------

struct SessionFixture {
  FakeUserPrompt prompt;
  SessionCommands session{prompt};
  bool connect_result = true;
  bool start_result = true;
  std::string calls;

  void Install() {
    session.set_handlers(SessionHandlers{
        [this] {
          calls += "C";
          return connect_result;
        },
        [this] { calls += "D"; },
        [this] {
          calls += "S";
          return start_result;
        },
        [this] { calls += "c"; },
        [this] { calls += "s"; },
    });
  }
};

TEST(SessionCommands, CaptureCountsAndStatusTexts) {
  SessionFixture f;
  f.Install();
  EXPECT_EQ(f.session.Run(kCmdConnect), std::nullopt);
  EXPECT_TRUE(f.session.host_screen_shown());
  EXPECT_EQ(Row(f.session.enabling()), "01100");
  EXPECT_EQ(f.session.Run(kCmdStartCapture), "Ready to capture");
  EXPECT_EQ(f.session.Run(kCmdCapture), "Captured : 1 screens");
  EXPECT_EQ(f.session.Run(kCmdCapture), "Captured : 2 screens");
  EXPECT_EQ(f.session.Run(kCmdStopCapture), "");
  EXPECT_EQ(Row(f.session.enabling()), "01100");
  EXPECT_EQ(f.session.Run(kCmdStartCapture), "Ready to capture");
  EXPECT_EQ(f.session.Run(kCmdCapture), "Captured : 1 screens");
  EXPECT_EQ(f.session.Run(kCmdDisconnect), std::nullopt);
  EXPECT_FALSE(f.session.host_screen_shown());
  EXPECT_EQ(Row(f.session.enabling()), "10000");
  EXPECT_EQ(f.calls, "CSccsScD");
  EXPECT_TRUE(f.prompt.shown.empty());
}

TEST(SessionCommands, FailedConnectOrStartCaptureChangesNothing) {
  SessionFixture f;
  f.Install();
  f.connect_result = false;
  f.session.Run(kCmdConnect);
  EXPECT_FALSE(f.session.host_screen_shown());
  EXPECT_EQ(Row(f.session.enabling()), "10000");
  f.connect_result = true;
  f.session.Run(kCmdConnect);
  f.start_result = false;
  EXPECT_EQ(f.session.Run(kCmdStartCapture), std::nullopt);
  EXPECT_EQ(Row(f.session.enabling()), "01100");
}

TEST(SessionCommands, MissingSessionSaysSoAndChangesNothing) {
  SessionFixture f;
  f.session.Run(kCmdConnect);
  ASSERT_EQ(f.prompt.shown.size(), 1u);
  EXPECT_EQ(f.prompt.shown[0].text, "The host session is not available in this build.");
  EXPECT_EQ(f.prompt.shown[0].caption, "Veltrix - TN5250");
  EXPECT_FALSE(f.session.host_screen_shown());
  EXPECT_EQ(Row(f.session.enabling()), "10000");
}

}  // namespace
}  // namespace veltrix
