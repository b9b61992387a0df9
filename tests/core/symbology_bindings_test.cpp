// Every option dialog writes only the bits of the fields its controls are bound to (plus the spare
// bits its rules clear) and nothing outside its own working block, whatever the blocks held before.

#include <gtest/gtest.h>

#include <algorithm>
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

// A dialog used 20 times on random blocks: only `own` bits of its block (1 or 2) change.
template <typename Open, typename Apply>
void ExpectOnlyOwnBits(std::string_view name, const OwnedBindings& bindings, const BitSet& own,
                       bool block1, Open open, Apply apply, std::mt19937& random) {
  using Bytes = std::span<const std::uint8_t>;
  const auto blocks = [block1](const Document& d) {
    return block1 ? std::pair<Bytes, Bytes>(d.reader_block1, d.reader_block2)
                  : std::pair<Bytes, Bytes>(d.reader_block2, d.reader_block1);
  };
  for (int round = 0; round < 20; ++round) {
    auto doc = RandomDocument(random);
    const Document before = *doc;
    open(*doc);
    UseEveryControl(*doc, bindings, random);
    apply(*doc);
    ExpectOnlyOwnBitsChanged(blocks(before).first, blocks(*doc).first,
                             block1 ? kReaderBlock1Offset : kReaderBlock2Offset, own, name);
    EXPECT_TRUE(std::ranges::equal(blocks(before).second, blocks(*doc).second)) << name;
    EXPECT_EQ(before.record, doc->record) << name;
  }
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
    ExpectOnlyOwnBits(
        dialog.template_name, LinearOptionBindings(dialog), own, false, [](Document&) {},
        [&dialog](Document& doc) { ApplyLinearOptions(doc, dialog); }, random);
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
    ExpectOnlyOwnBits(
        dialog.template_name, TwoDOptionBindings(dialog), own, true,
        [&dialog](Document& doc) { OpenTwoDOptions(doc, dialog); },
        [&dialog](Document& doc) { ApplyTwoDOptions(doc, dialog); }, random);
  }
}

}  // namespace
}  // namespace veltrix
