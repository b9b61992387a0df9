#include <gtest/gtest.h>

#include "tn5250/keys.h"

namespace veltrix {
namespace {

struct KeyCase {
  HostKey key;
  KeyFunction function;
  std::uint8_t aid;
};
constexpr KeyFunction F(int n) { return CommandFunction(n); }

class KeyFunctionTest : public ::testing::TestWithParam<KeyCase> {};

TEST_P(KeyFunctionTest, MapsKeysToFunctionsAndAids) {
  const KeyCase c = GetParam();
  EXPECT_EQ(FunctionOfKey(c.key), c.function);
  EXPECT_EQ(FunctionToAid(c.function), c.aid);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyFunctionTest,
    ::testing::Values(KeyCase{HostKey::kF1, F(1), 0x31}, KeyCase{HostKey::kF9, F(9), 0x39},
                      KeyCase{HostKey::kF10, F(10), 0x3A}, KeyCase{HostKey::kF11, F(11), 0x3B},
                      KeyCase{HostKey::kF12, F(12), 0x3C},
                      KeyCase{HostKey::kEnter, KeyFunction::kEnter, 0xF1},
                      KeyCase{HostKey::kPageUp, KeyFunction::kRollDown, 0xF4},
                      KeyCase{HostKey::kPageDown, KeyFunction::kRollUp, 0xF5},
                      KeyCase{HostKey::kDelete, KeyFunction::kDelete, 0},
                      KeyCase{HostKey::kFieldPlus, KeyFunction::kFieldPlus, 0},
                      KeyCase{HostKey::kFieldMinus, KeyFunction::kFieldMinus, 0},
                      KeyCase{HostKey::kTab, KeyFunction::kFieldAdvance, 0},
                      KeyCase{HostKey::kHome, KeyFunction::kFirstField, 0},
                      KeyCase{HostKey::kEnd, KeyFunction::kEndOfField, 0},
                      KeyCase{HostKey::kReset, KeyFunction::kReset, 0},
                      KeyCase{HostKey::kBackspace, KeyFunction::kBackspace, 0},
                      KeyCase{HostKey::kUp, KeyFunction::kNone, 0},
                      KeyCase{HostKey::kRight, KeyFunction::kNone, 0}));

TEST(KeyFunctionTest, ShiftedFunctionKeysHaveTheirAids) {
  EXPECT_EQ(FunctionToAid(F(13)), 0xB1);
  EXPECT_EQ(FunctionToAid(F(24)), 0xBC);
  EXPECT_EQ(FunctionToAid(F(25)), 0);
  EXPECT_EQ(FunctionOfKey(static_cast<HostKey>(137)), F(10));
  for (int n = 1; n <= 12; ++n) EXPECT_EQ(FunctionOfKey(FunctionKey(n)), F(n));
}

}  // namespace
}  // namespace veltrix
