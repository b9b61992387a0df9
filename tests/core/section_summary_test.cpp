// Summary lines that the summary cases cannot reach: the working copy of the reader settings,
// bytes no text edit makes, and random records.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "default_document.h"
#include "settings/network/network_settings.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/reader_settings.h"
#include "settings/reader/working_block.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

// One branch of the summary as text.
std::string Branch(const Document& doc, const std::string& title) {
  for (const SummaryNode& branch : BuildSummary(doc)) {
    if (branch.text == title) return RenderSummaryText({branch});
  }
  return {};
}

TEST(BardodeSummary, ReadsTheLinearWorkingCopy) {
  auto doc = testing::DefaultDocument(1);
  WriteWorking(*doc, kScanMode, 1);
  EXPECT_EQ(6u, ReadNumber(doc->record, kScanMode));
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(*doc, bardode);
  EXPECT_EQ("Scan Mode : Continuous", bardode.children[0].children[0].text);
}

TEST(BardodeSummary, ControlBytesOfTheLeadingCodeShowAsQuestionMarks) {
  auto doc = testing::DefaultDocument(1);
  WriteText(doc->record, kLeadingCode, "A\nB\x7F");
  SummaryNode bardode{"Bardode", {}};
  AppendReaderSummary(*doc, bardode);
  EXPECT_EQ("Leading Code: A?B?", bardode.children[2].children[1].text);
}

// Whatever a loaded file holds, the branch has the same lines (only their values change).
TEST(BardodeSummary, AnyRecordGivesTheSameShape) {
  const auto lines = [](const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
  };
  const auto want = lines(Branch(*testing::DefaultDocument(1), "Bardode"));
  std::mt19937 random(3);
  for (int round = 0; round < 50; ++round) {
    auto doc = std::make_unique<Document>();
    for (std::size_t at = 3690; at < 3783; ++at) doc->record[at] = random() & 0xFF;
    for (auto& b : doc->reader_block2) b = random() & 0xFF;
    doc->record[kProductOffset] = 1;
    const std::string text = Branch(*doc, "Bardode");
    EXPECT_EQ(want, lines(text));
  }
}

// A text filling its whole field (no NUL, as a file may hold it) shows in full.
TEST(WirelessSummary, ATextWithoutItsNulShowsWhole) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  auto local_name = FieldBytes(std::span<std::uint8_t>(doc->record), kLocalName);
  std::fill(local_name.begin(), local_name.end(), 'Z');  // no NUL within the width
  const std::string text = Branch(*doc, "Wireless LAN");
  EXPECT_NE(std::string::npos, text.find("Local Name : " + std::string(20, 'Z') + "\n"));
}

}  // namespace
}  // namespace veltrix
