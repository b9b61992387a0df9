#include "settings/document.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "settings/field_registry.h"

namespace veltrix {
namespace {

TEST(Document, DefaultsAreTaggedWithTheProduct) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 2);
  EXPECT_EQ(0, std::memcmp(doc->record.data(), "I100\0", 5));
  EXPECT_EQ(2, doc->product());
}

TEST(FieldRegistry, FieldsLieInsideTheRecordAndNamesAreUnique) {
  for (const FieldDef* f : AllFields()) {
    EXPECT_LT(f->LastByte(), kRecordSize) << f->name;
    EXPECT_EQ(f, FindField(f->name)) << "duplicate name " << f->name;
  }
}

}  // namespace
}  // namespace veltrix
