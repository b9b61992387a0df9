#include <gtest/gtest.h>

#include <set>
#include <string>

#include "resources/strings.h"
#include "settings_test_files.h"
#include "shell/command_enabling.h"
#include "shell/command_table.h"
#include "shell/session_commands.h"
#include "support/fake_ports.h"

namespace veltrix {
namespace {

// The menus, each command's menu text, description, toolbar tip and product rule, and the
// toolbar, as the user meets them: compared with tests/core/golden/shell/commands.txt.
TEST(CommandTable, MenusCommandsAndToolbarMatchTheGolden) {
  std::string out;
  std::set<int> seen;
  for (const MenuDef& menu : kMenus) {
    out += std::string(menu.title) + "\n";
    for (int id : menu.items) {
      if (id == kSeparator) {
        out += "  -\n";
        continue;
      }
      EXPECT_TRUE(seen.insert(id).second) << id;  // every command once
      const CommandDef* c = FindCommand(id);
      ASSERT_NE(c, nullptr) << id;
      out += "  " + std::to_string(id) + " \"" + std::string(MenuLabel(c->menu_text)) + "\" [" +
             std::string(MenuShortcut(c->menu_text)) + "] \"" +
             std::string(CommandDescription(id)) + "\" tip \"" + std::string(CommandTooltip(id)) +
             "\"" + (c->needs_product ? " needs a product" : "") + "\n";
    }
  }
  EXPECT_EQ(seen.size(), kCommands.size());
  out += "toolbar";
  for (const ToolButtonDef& b : kToolbar) {
    out.append(b.command == kSeparator ? " |" : " ")
        .append(b.command == kSeparator ? "" : std::to_string(b.command));
    EXPECT_EQ(b.command == kSeparator, b.image == ToolImage::kNone);
  }
  out += "\n";
  for (int id : {1001, 1002, 8888, 8889, 8890}) {
    out += "string " + std::to_string(id) + " \"" + std::string(StringResource(id)) + "\"\n";
  }
  EXPECT_TRUE(testing::MatchesGolden(out, "shell/commands.txt"));
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

  void Install() {
    session.set_handlers(SessionHandlers{[this] {
                                           return ConnectAttempt{connect_result, true, ""};
                                         },
                                         [] {}, [this] { return start_result; }, [] {}, [] {}});
  }
};

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
