// Every option dialog writes only the bits of the fields its controls are bound to (plus the spare
// bits its rules clear) and nothing outside its own working block, whatever the blocks held before.

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "settings/reader/symbology_options.h"
#include "settings/reader/two_d_options.h"
#include "settings/reader/working_block.h"
#include "support/binding_driver.h"

namespace veltrix {
namespace {

using BitSet = std::set<std::pair<std::uint32_t, int>>;

void AddBits(const FieldDef& f, BitSet& bits) {
  if (f.type == FieldType::kBits) {
    for (int b = f.bit_lo; b < f.bit_lo + f.bit_count; ++b) bits.emplace(f.offset, b);
    return;
  }
  for (std::uint32_t at = f.offset; at <= f.LastByte(); ++at) {
    for (int b = 0; b < 8; ++b) bits.emplace(at, b);
  }
}

// Bits that differ between two images of a block starting at record offset `base`.
BitSet Changed(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
               std::uint32_t base) {
  BitSet bits;
  for (std::size_t i = 0; i < before.size(); ++i) {
    for (int b = 0; b < 8; ++b) {
      if (((before[i] ^ after[i]) >> b) & 1) bits.emplace(base + i, b);
    }
  }
  return bits;
}

// A document whose working blocks hold random bytes and whose record is all 0x5A.
std::unique_ptr<Document> RandomDocument(std::mt19937& random) {
  auto doc = std::make_unique<Document>();
  for (auto& b : doc->reader_block1) b = static_cast<std::uint8_t>(random());
  for (auto& b : doc->reader_block2) b = static_cast<std::uint8_t>(random());
  doc->record.fill(0x5A);
  return doc;
}

// Every bit that differs between the two images of a block must belong to the dialog.
void ExpectOnlyOwnBitsChanged(std::span<const std::uint8_t> before,
                              std::span<const std::uint8_t> after, std::uint32_t base,
                              const BitSet& own, std::string_view dialog) {
  for (const auto& bit : Changed(before, after, base)) {
    EXPECT_TRUE(own.count(bit)) << dialog << " wrote byte " << bit.first << " bit " << bit.second;
  }
}

// Every control of the dialog set at random (numbers typed, up to 129), then OK.
void UseEveryControl(Document& doc, const OwnedBindings& bindings, std::mt19937& random) {
  BindingSession user = testing::Session(doc, bindings.lines);
  for (const FieldBinding& line : bindings.lines) {
    if (line.kind == ControlKind::kNumberEdit) {
      user.Type(line.control, std::to_string(random() % 130));
    } else {
      user.Set(line.control, static_cast<int>(random() % 6));
    }
  }
  user.Commit();
}

TEST(SymbologyBindings, LinearDialogsWriteOnlyTheirOwnBits) {
  std::mt19937 random(7);
  for (const LinearOptionDialog& dialog : LinearOptionDialogs()) {
    BitSet own;
    for (const CheckBoxControl& check : dialog.checks) AddBits(*check.field, own);
    for (const ChoiceControl& group : dialog.radios) {
      AddBits(*group.field, own);
      if (group.flag != nullptr) AddBits(*group.flag, own);
    }
    if (dialog.length != nullptr) AddBits(*dialog.length, own);
    for (int round = 0; round < 20; ++round) {
      auto doc = RandomDocument(random);
      const auto block1 = doc->reader_block1;
      const auto block2 = doc->reader_block2;
      const auto record = doc->record;
      const OwnedBindings bindings = LinearOptionBindings(dialog);
      UseEveryControl(*doc, bindings, random);
      ApplyLinearOptions(*doc, dialog);
      ExpectOnlyOwnBitsChanged(block2, doc->reader_block2, kReaderBlock2Offset, own,
                               dialog.template_name);
      EXPECT_EQ(block1, doc->reader_block1) << dialog.template_name;
      EXPECT_EQ(record, doc->record) << dialog.template_name;
    }
  }
}

TEST(SymbologyBindings, TwoDimensionalDialogsWriteOnlyTheirOwnBits) {
  std::mt19937 random(11);
  for (const TwoDOptionDialog& dialog : TwoDOptionDialogs()) {
    BitSet own;
    for (const CheckBoxControl& check : dialog.checks) AddBits(*check.field, own);
    for (const ChoiceControl& list : dialog.lists) {
      AddBits(*list.field, own);
      if (list.flag != nullptr) AddBits(*list.flag, own);
    }
    for (const FieldDef* f : {dialog.length_option, dialog.length1, dialog.length2}) {
      if (f != nullptr) AddBits(*f, own);
    }
    for (const FieldDef* f : dialog.cleared_on_open) AddBits(*f, own);
    for (const FieldDef* f : dialog.cleared_on_ok) AddBits(*f, own);
    for (int round = 0; round < 20; ++round) {
      auto doc = RandomDocument(random);
      const auto block1 = doc->reader_block1;
      const auto block2 = doc->reader_block2;
      const auto record = doc->record;
      OpenTwoDOptions(*doc, dialog);
      const OwnedBindings bindings = TwoDOptionBindings(dialog);
      UseEveryControl(*doc, bindings, random);
      ApplyTwoDOptions(*doc, dialog);
      ExpectOnlyOwnBitsChanged(block1, doc->reader_block1, kReaderBlock1Offset, own,
                               dialog.template_name);
      EXPECT_EQ(block2, doc->reader_block2) << dialog.template_name;
      EXPECT_EQ(record, doc->record) << dialog.template_name;
    }
  }
}

}  // namespace
}  // namespace veltrix
