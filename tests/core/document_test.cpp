#include "settings/document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "default_document.h"
#include "settings/field_registry.h"
#include "settings/field_values.h"

namespace veltrix {
namespace {

// The bits of each record byte that one field element covers.
struct Cover {
  std::uint32_t byte;
  std::uint8_t bits;
};

std::vector<Cover> CoverOf(const FieldElement& e) {
  const FieldDef& f = *e.field;
  const std::uint32_t at = f.OffsetOf(e.i, e.j);
  if (f.type == FieldType::kBits) {
    return {{at, static_cast<std::uint8_t>(((1u << f.bit_count) - 1u) << f.bit_lo)}};
  }
  std::vector<Cover> cover;
  const std::uint32_t width = f.type == FieldType::kU16 ? 2 : f.width;
  for (std::uint32_t k = 0; k < width; ++k) cover.push_back({at + k, 0xFF});
  if (f.type == FieldType::kSplitU16) cover.push_back({f.offset_hi + (at - f.offset), 0xFF});
  return cover;
}

using testing::DefaultDocument;

TEST(Document, DefaultsDoNotDependOnWhatWasThereBefore) {
  for (int product : {0, 1, 2}) {
    auto clean = DefaultDocument(product);
    auto dirty = std::make_unique<Document>();
    dirty->record.fill(0xA5);
    for (PageRecord& page : dirty->pages) page.fill(0xA5);
    SetDefaults(*dirty, product);
    EXPECT_TRUE(clean->record == dirty->record) << "product " << product;
    EXPECT_TRUE(clean->pages == dirty->pages) << "product " << product;
  }
}

TEST(Document, DefaultsLeaveEveryUndeclaredByteZero) {
  std::vector<std::uint8_t> declared(kRecordSize, 0);  // the bits some field covers
  for (const FieldDef* f : AllFields()) {
    for (const FieldElement& e : ElementsOf(*f)) {
      for (const Cover& c : CoverOf(e)) declared[c.byte] |= c.bits;
    }
  }
  for (int product : {0, 1, 2}) {
    auto doc = DefaultDocument(product);
    for (std::size_t k = 0; k < kRecordSize; ++k) {
      EXPECT_EQ(0, doc->record[k] & ~declared[k])
          << "product " << product << ": byte " << k << " is " << int{doc->record[k]}
          << " outside any field";
    }
    for (const PageRecord& page : doc->pages) {
      EXPECT_TRUE(std::ranges::all_of(page, [](std::uint8_t b) { return b == 0; }));
    }
  }
}

TEST(FieldRegistry, FieldsLieInsideTheRecordAndNamesAreUnique) {
  for (const FieldDef* f : AllFields()) {
    EXPECT_LT(f->LastByte(), kRecordSize) << f->name;
    EXPECT_EQ(f, FindField(f->name)) << "duplicate name " << f->name;
    EXPECT_GE(f->count, 1) << f->name;
    EXPECT_GE(f->count2, 1) << f->name;
    if (f->type == FieldType::kBits) {
      EXPECT_LE(f->bit_lo + f->bit_count, 8) << f->name;
      EXPECT_GE(f->bit_count, 1) << f->name;
    }
    if (!f->numeric()) {
      EXPECT_GE(f->width, 1) << f->name;
    }
    if (f->numeric()) {
      EXPECT_LE(f->min, f->max) << f->name;
      // A constant default must be a value the field accepts.
      EXPECT_GE(f->default_value, f->min) << f->name;
      EXPECT_LE(f->default_value, f->max) << f->name;
    }
  }
}

TEST(FieldRegistry, NoFieldInTheUnusedRanges) {
  const struct { std::uint32_t first, last; } unused[] = {{6, 24}, {2870, 3689}, {57659, 58658}};
  for (const FieldDef* f : AllFields()) {
    for (const FieldElement& e : ElementsOf(*f)) {
      for (const Cover& c : CoverOf(e)) {
        for (const auto& range : unused) {
          EXPECT_FALSE(c.byte >= range.first && c.byte <= range.last)
              << ElementName(e) << " uses byte " << c.byte;
        }
      }
    }
  }
}

// Fields that name a part of another field on purpose.
constexpr std::pair<std::string_view, std::string_view> kDeliberateOverlaps[] = {
    {"RfidReader", "ReaderType"},  // bit 1 of the reader type byte has its own check box
};

bool Deliberate(std::string_view a, std::string_view b) {
  for (const auto& [x, y] : kDeliberateOverlaps) {
    if ((a == x && b == y) || (a == y && b == x)) return true;
  }
  return false;
}

TEST(FieldRegistry, NoTwoFieldsShareABit) {
  // Owner of each bit of the record, as an index into `names`.
  std::vector<std::array<int, 8>> owner(kRecordSize);
  for (auto& bits : owner) bits.fill(-1);
  std::vector<std::string> names;
  std::vector<std::string_view> fields;
  int clashes = 0;
  for (const FieldDef* f : AllFields()) {
    for (const FieldElement& e : ElementsOf(*f)) {
      names.push_back(ElementName(e));
      fields.push_back(f->name);
      const int me = static_cast<int>(names.size()) - 1;
      for (const Cover& c : CoverOf(e)) {
        for (int bit = 0; bit < 8; ++bit) {
          if (!(c.bits & (1 << bit))) continue;
          int& held = owner[c.byte][bit];
          if (held >= 0 && !Deliberate(fields[me], fields[held]) && ++clashes <= 20) {
            ADD_FAILURE() << names[me] << " and " << names[held] << " share byte " << c.byte
                          << " bit " << bit;
          }
          if (held < 0) held = me;
        }
      }
    }
  }
  EXPECT_EQ(0, clashes);
}

}  // namespace
}  // namespace veltrix
