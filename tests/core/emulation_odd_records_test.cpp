// Settings files can hold any byte anywhere: the sections must read them without crashing and
// keep every summary line within its 99 characters.
#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/network/network_settings.h"
#include "settings/network/wep_key.h"

namespace veltrix {
namespace {

void ExpectShortLines(const SummaryNode& node) {
  EXPECT_LE(node.text.size(), 99u) << node.text;
  for (const SummaryNode& child : node.children) ExpectShortLines(child);
}

void ExerciseSections(Document& doc) {
  SummaryNode wireless{"Wireless LAN", {}};
  AppendNetworkSummary(doc, wireless);
  SummaryNode emulation{"Emulation", {}};
  AppendEmulationSummary(doc, emulation);
  ExpectShortLines(wireless);
  ExpectShortLines(emulation);
  for (int key : MappingRowKeys()) {
    MappingLabel(doc, key);
    MappingRowEnabled(doc, key);
  }
  for (int i = 0; i < 4; ++i) StoredWepKeyText(doc, i);
  RebuildKeyCodeTable(doc);
  SetFunctionKeyDefaults(doc);
  SetEmulationDefaults(doc);
  SetNetworkDefaults(doc);
}

TEST(OddRecords, EveryByteSetToOneValue) {
  for (int value : {0x00, 0x01, 0x7F, 0xC9, 0xFF}) {
    auto doc = std::make_unique<Document>();
    doc->record.fill(static_cast<std::uint8_t>(value));
    doc->record[kProductOffset] = 2;
    ApplyKeyAvailability(*doc);
    ExerciseSections(*doc);
  }
}

TEST(OddRecords, RandomRecords) {
  std::mt19937 random(20261123);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 50; ++round) {
    auto doc = std::make_unique<Document>();
    for (std::uint8_t& b : doc->record) b = static_cast<std::uint8_t>(byte(random));
    doc->key_present.fill(true);
    ExerciseSections(*doc);
    // After the default routines the mapping holds only valid entries again.
    for (int n = 0; n < 50; ++n) {
      const KeyMapping m = ReadKeyMapping(*doc, n);
      EXPECT_TRUE(m.group == 0 || (m.group >= 201 && m.group <= 206)) << n;
    }
  }
}

}  // namespace
}  // namespace veltrix
