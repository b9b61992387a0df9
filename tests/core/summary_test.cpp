#include "shell/summary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "default_document.h"
#include "settings_test_files.h"
#include "shell/summary_json.h"

namespace veltrix {
namespace {

using testing::DefaultDocument;

TEST(Summary, IsEmptyWithoutAProduct) { EXPECT_TRUE(BuildSummary(*DefaultDocument(0)).empty()); }

TEST(Summary, HasTheSixSectionsInOrder) {
  for (int product : {1, 2}) {
    const std::vector<SummaryNode> tree = BuildSummary(*DefaultDocument(product));
    std::vector<std::string> texts;
    for (const SummaryNode& node : tree) texts.push_back(node.text);
    EXPECT_EQ((std::vector<std::string>{"Information", "System", "Bardode", "Wireless LAN",
                                        "Emulation", "Screen"}),
              texts);
  }
}

TEST(KeyNamesText, NameModeStopsAtZeroAndHexModeDoesNot) {
  const std::uint8_t bytes[] = {13, 65, 0, 66};
  EXPECT_EQ("Enter A ", KeyNamesText(bytes, 4, KeyNameMode::kNames));
  EXPECT_EQ("0D 41 00 42 ", KeyNamesText(bytes, 4, KeyNameMode::kHex));
}

TEST(KeyNamesText, NamesEveryKindOfByte) {
  const struct {
    std::uint8_t value;
    const char* text;
  } cases[] = {
      {1, "Ins "},   {2, "Del "},   {8, "BS "},    {11, "Right "}, {13, "Enter "},
      {14, "PgDn "}, {15, "F1 "},   {26, "F12 "},  {27, "ESC "},   {28, "Exec "},
      {29, " "},     {31, " "},     {32, "SP "},   {33, "! "},     {48, "0 "},
      {126, "~ "},   {127, "DEL "}, {128, "128 "}, {200, "200 "},  {255, "255 "},
  };
  for (const auto& c : cases) {
    const std::uint8_t byte[] = {c.value};
    EXPECT_EQ(c.text, KeyNamesText(byte, 1, KeyNameMode::kNames)) << int{c.value};
  }
}

TEST(KeyNamesText, CountLimitsTheBytes) {
  const std::uint8_t bytes[] = {0xAB, 0x01, 0xFF};
  EXPECT_EQ("AB 01 ", KeyNamesText(bytes, 2, KeyNameMode::kHex));
  EXPECT_EQ("AB 01 FF ", KeyNamesText(bytes, 10, KeyNameMode::kHex));  // no reading past the end
  EXPECT_EQ("", KeyNamesText(bytes, 0, KeyNameMode::kHex));
  EXPECT_EQ("", KeyNamesText(bytes, -3, KeyNameMode::kNames));
}

TEST(KeyNamesText, NeverExceedsAHundredCharactersNorCutsAName) {
  const std::vector<std::uint8_t> f12(60, 26);
  const std::string names = KeyNamesText(f12, 60, KeyNameMode::kNames);
  EXPECT_EQ(100u, names.size());
  EXPECT_EQ("F12 ", names.substr(96));
  const std::vector<std::uint8_t> bytes(60, 0x5A);
  EXPECT_EQ(99u, KeyNamesText(bytes, 60, KeyNameMode::kHex).size());
}

TEST(SummaryJson, NestsChildrenAndEscapesEveryByte) {
  std::vector<SummaryNode> tree(1);
  tree[0].text = "Top";
  tree[0].Add("say \"hi\"\\").Add(std::string("tab\tnl\ncr\rbell\x07") + "\xC4" + "\x7F");
  tree[0].Add("");
  EXPECT_EQ(
      "[{\"text\":\"Top\",\"children\":[{\"text\":\"say \\\"hi\\\"\\\\\",\"children\":"
      "[{\"text\":\"tab\\tnl\\ncr\\rbell\\u0007\\u00c4\\u007f\",\"children\":[]}]},"
      "{\"text\":\"\",\"children\":[]}]}]\n",
      RenderSummaryJson(tree));
  EXPECT_EQ("[]\n", RenderSummaryJson({}));
}

TEST(SummaryNode, CutsLinesToTheLineBuffer) {
  SummaryNode node;
  EXPECT_EQ(99u, node.Add(std::string(150, 'x')).text.size());
}

}  // namespace
}  // namespace veltrix
