// The document New makes for each product, byte for byte: every 16-byte row of the record, the
// reader working blocks and the key code table that holds anything but zeros, compared with
// tests/core/golden/defaults/productN.txt.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <span>
#include <string>

#include "default_document.h"
#include "settings_test_files.h"

namespace veltrix {
namespace {

void DumpRows(std::string& out, const char* title, std::span<const std::uint8_t> bytes) {
  out += title;
  out += '\n';
  char cell[32];
  for (std::size_t row = 0; row < bytes.size(); row += 16) {
    const auto line = bytes.subspan(row, std::min<std::size_t>(16, bytes.size() - row));
    if (std::ranges::all_of(line, [](std::uint8_t b) { return b == 0; })) continue;
    std::snprintf(cell, sizeof cell, "%06zu:", row);
    out += cell;
    for (const std::uint8_t b : line) {
      std::snprintf(cell, sizeof cell, " %02X", b);
      out += cell;
    }
    out += '\n';
  }
}

class DefaultsGolden : public ::testing::TestWithParam<int> {};

TEST_P(DefaultsGolden, NewDocumentIsByteExact) {
  const auto doc = testing::DefaultDocument(GetParam());
  std::string out;
  DumpRows(out, "record", doc->record);
  DumpRows(out, "reader block 1", doc->reader_block1);
  DumpRows(out, "reader block 2", doc->reader_block2);
  DumpRows(out, "key code table", doc->key_codes);
  out += "keys present";
  for (std::size_t key = 0; key < doc->key_present.size(); ++key) {
    if (doc->key_present[key]) out += ' ' + std::to_string(key);
  }
  out += '\n';
  for (const PageRecord& page : doc->pages) {
    EXPECT_TRUE(std::ranges::all_of(page, [](std::uint8_t b) { return b == 0; }));
  }
  EXPECT_TRUE(
      testing::MatchesGolden(out, "defaults/product" + std::to_string(GetParam()) + ".txt"));
}

INSTANTIATE_TEST_SUITE_P(Products, DefaultsGolden, ::testing::Values(0, 1, 2, 3, 7));

}  // namespace
}  // namespace veltrix
