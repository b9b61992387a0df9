#include "resources/strings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace veltrix {
namespace {

struct StringEntry {
  int id;
  std::string_view text;
};

// Sorted by id.
constexpr StringEntry kStrings[] = {
    // ---- menu command descriptions (id = command id) --------------------------------------
    {1001, "Veltrix"},
    {1002, "Veltrix - TN5250"},
    {1010, "Creates a new document"},
    {1020, "Opens an existing document"},
    {1030, "Saves the active document"},
    {1040, "Saves the active document with a new name"},
    {1090, "Quites the application"},
    {1095, "Brings back the settings a product change replaced"},
    {1110, "Configure the terminal settings"},
    {1210, "Download the current settings to the terminal"},
    {1220, "Download the current program to the terminal"},
    {1310, "Capture current screen"},
    {1320, "Start Capture"},
    {1330, "Stop capture screen"},
    {1340, "Connect to host"},
    {1350, "Disconnect"},
    {1910, "Copyright information"},
    // ---- toolbar tooltips (id = command id + 1000) -----------------------------------------
    {2010, "New"},
    {2020, "Open"},
    {2030, "Save"},
    {2110, "Configure"},
    {2210, "Download"},
    {2310, "Capture"},
    {2320, "Start Capture"},
    {2330, "Stop Capture"},
    {2340, "Connect"},
    {2350, "Disconnect"},
    // ---- product list ----------------------------------------------------------------------
    {3001, "2"},
    {3002, "Dravin S"},
    {3003, "Dravin R"},
    // ---- summary information -----------------------------------------------------------------
    {4001, "Quarvel"},
    {4002, VELTRIX_VERSION},  // the project's version, from the build
    {4003, "Copyright (C) Quarvel. All rights reserved."},
    // ---- licence agreement (About box) -------------------------------------------------------
    {8888,
     "LICENCE AGREEMENT\n"
     "\n"
     "Veltrix prepares the settings and programs of Dravin S and Dravin R terminals and\n"
     "works as a 5250 display station of the host. You may install and use it on any\n"
     "number of computers of your organisation to set up the terminals you operate.\n"
     "\n"},
    {8889,
     "You may not sell, rent or lend Veltrix, nor remove or change this notice. Settings\n"
     "files, screen files and programs that you make with Veltrix are yours.\n"
     "\n"},
    {8890,
     "Veltrix is provided as is, without any warranty. Keep a copy of every settings file\n"
     "before you download it to a terminal; no liability is accepted for lost data,\n"
     "interrupted work or terminals left in need of a new download.\n"},
};

}  // namespace

std::string_view StringResource(int id) {
  auto it = std::find_if(std::begin(kStrings), std::end(kStrings),
                         [id](const StringEntry& e) { return e.id == id; });
  return it == std::end(kStrings) ? std::string_view{} : it->text;
}

std::vector<std::string_view> ProductNames() {
  std::string_view count_text = StringResource(3001);
  int count = 0;
  std::from_chars(count_text.data(), count_text.data() + count_text.size(), count);
  std::vector<std::string_view> names;
  for (int i = 1; i <= count; ++i) names.push_back(StringResource(3001 + i));
  return names;
}

}  // namespace veltrix
