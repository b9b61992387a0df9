#ifndef VELTRIX_SHELL_COMMAND_TABLE_H_
#define VELTRIX_SHELL_COMMAND_TABLE_H_

#include <array>
#include <span>
#include <string_view>

namespace veltrix {

// Menu command ids. A command's status-bar description is the string resource with the same
// id; its toolbar tooltip the string resource id + 1000.
enum CommandId : int {
  kCmdNew = 1010,
  kCmdOpen = 1020,
  kCmdSave = 1030,
  kCmdSaveAs = 1040,
  kCmdExit = 1090,
  kCmdUndo = 1095,
  kCmdConfigure = 1110,
  kCmdDownloadSettings = 1210,
  kCmdDownloadProgram = 1220,
  kCmdCapture = 1310,
  kCmdStartCapture = 1320,
  kCmdStopCapture = 1330,
  kCmdConnect = 1340,
  kCmdDisconnect = 1350,
  kCmdAbout = 1910,
};

inline constexpr int kProductBoxId = 1810;
inline constexpr int kToolbarId = 102;
inline constexpr int kStatusBarId = 101;
inline constexpr int kTooltipOffset = 1000;
inline constexpr int kApplicationNameId = 1001;  // "Veltrix"
inline constexpr int kWindowTitleId = 1002;      // "Veltrix - TN5250"

struct CommandDef {
  int id;
  std::string_view menu_text;  // as in the menu, "&New\tCtrl+N": label, tab, shortcut
  bool needs_product;          // refused with "Please select product !!" while none is chosen
};

inline constexpr std::array<CommandDef, 15> kCommands{{
    {kCmdNew, "&New\tCtrl+N", true},
    {kCmdOpen, "&Open...\tCtrl+O", false},
    {kCmdSave, "&Save\tCtrl+S", true},
    {kCmdSaveAs, "Save &As...", true},
    {kCmdExit, "&Exit\tAlt+F4", false},
    {kCmdUndo, "&Undo\tCtrl+Z", false},
    {kCmdConfigure, "&Configure...\tCtrl+C", true},
    {kCmdDownloadSettings, "&Download settings...\tCtrl+D", true},
    {kCmdDownloadProgram, "Download &Program...\tCtrl+P", false},
    {kCmdConnect, "Connect...", false},
    {kCmdDisconnect, "Disconnect", false},
    {kCmdStartCapture, "Start Capture...", false},
    {kCmdCapture, "Capture", false},
    {kCmdStopCapture, "Stop Capture", false},
    {kCmdAbout, "About &Veltrix...", false},
}};

inline constexpr int kSeparator = 0;

// The menu "QUARVEL": each menu's title and its items (kSeparator for a separator line).
struct MenuDef {
  std::string_view title;
  std::span<const int> items;
};

inline constexpr int kFileMenuItems[] = {kCmdNew,    kCmdOpen,   kCmdSave,
                                         kCmdSaveAs, kSeparator, kCmdExit};
inline constexpr int kEditMenuItems[] = {kCmdUndo};
inline constexpr int kUtilitiesMenuItems[] = {kCmdConfigure, kCmdDownloadSettings,
                                              kCmdDownloadProgram};
inline constexpr int kTelnetMenuItems[] = {kCmdConnect,      kCmdDisconnect, kSeparator,
                                           kCmdStartCapture, kCmdCapture,    kCmdStopCapture};
inline constexpr int kHelpMenuItems[] = {kCmdAbout};

inline constexpr std::array<MenuDef, 5> kMenus{{
    {"&File", kFileMenuItems},
    {"&Edit", kEditMenuItems},
    {"&Utilities", kUtilitiesMenuItems},
    {"&Telnet", kTelnetMenuItems},
    {"&Help", kHelpMenuItems},
}};

// Toolbar images: the system's standard ones, or our own two connection and three capture
// images.
enum class ToolImage {
  kNone,
  kStandardNew,
  kStandardOpen,
  kStandardSave,
  kStandardProperties,
  kStandardCopy,
  kConnect,
  kDisconnect,
  kStartCapture,
  kCapture,
  kStopCapture,
};

struct ToolButtonDef {
  int command;  // kSeparator for a separator
  ToolImage image;
};

inline constexpr int kToolImageWidth = 16;
inline constexpr int kToolImageHeight = 15;

// The toolbar, left to right (14 positions).
inline constexpr std::array<ToolButtonDef, 14> kToolbar{{
    {kSeparator, ToolImage::kNone},
    {kCmdNew, ToolImage::kStandardNew},
    {kCmdOpen, ToolImage::kStandardOpen},
    {kCmdSave, ToolImage::kStandardSave},
    {kSeparator, ToolImage::kNone},
    {kCmdConfigure, ToolImage::kStandardProperties},
    {kCmdDownloadSettings, ToolImage::kStandardCopy},
    {kSeparator, ToolImage::kNone},
    {kCmdConnect, ToolImage::kConnect},
    {kCmdDisconnect, ToolImage::kDisconnect},
    {kSeparator, ToolImage::kNone},
    {kCmdStartCapture, ToolImage::kStartCapture},
    {kCmdCapture, ToolImage::kCapture},
    {kCmdStopCapture, ToolImage::kStopCapture},
}};

// The product box sits on the toolbar at this place and size (pixels).
inline constexpr int kProductBoxX = 270;
inline constexpr int kProductBoxY = 1;
inline constexpr int kProductBoxWidth = 130;
inline constexpr int kProductBoxDropHeight = 200;
inline constexpr std::string_view kSelectProduct = "Select Product";

// The command with `id`, or null.
const CommandDef* FindCommand(int id);

// The label of a menu text without its shortcut ("&New" from "&New\tCtrl+N").
std::string_view MenuLabel(std::string_view menu_text);
// The shortcut after the tab ("Ctrl+N"), empty when there is none.
std::string_view MenuShortcut(std::string_view menu_text);

// The status-bar description and the tooltip of a command (empty when it has none).
std::string_view CommandDescription(int id);
std::string_view CommandTooltip(int id);

// True when the command is refused while no product is chosen.
bool NeedsProduct(int id);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_COMMAND_TABLE_H_
