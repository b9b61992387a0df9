#include <gtest/gtest.h>

#include "tn5250/keys.h"

namespace veltrix {
namespace {

struct KeyCase {
  HostKey key;
  int function;
  std::uint8_t aid;
};

class KeyFunctionTest : public ::testing::TestWithParam<KeyCase> {};

TEST_P(KeyFunctionTest, MapsKeysToFunctionsAndAids) {
  const KeyCase c = GetParam();
  EXPECT_EQ(KeyFunction(c.key), c.function);
  EXPECT_EQ(FunctionToAid(c.function), c.aid);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyFunctionTest,
    ::testing::Values(KeyCase{HostKey::kF1, 1, 0x31}, KeyCase{HostKey::kF9, 9, 0x39},
                      KeyCase{HostKey::kF10, 10, 0x3A}, KeyCase{HostKey::kF11, 11, 0x3B},
                      KeyCase{HostKey::kF12, 12, 0x3C}, KeyCase{HostKey::kEnter, 45, 0xF1},
                      KeyCase{HostKey::kPageUp, 36, 0xF4}, KeyCase{HostKey::kPageDown, 35, 0xF5},
                      KeyCase{HostKey::kDelete, 27, 0}, KeyCase{HostKey::kFieldPlus, 30, 0},
                      KeyCase{HostKey::kFieldMinus, 31, 0}, KeyCase{HostKey::kTab, 34, 0},
                      KeyCase{HostKey::kHome, 38, 0}, KeyCase{HostKey::kEnd, 33, 0},
                      KeyCase{HostKey::kReset, 44, 0}, KeyCase{HostKey::kBackspace, 47, 0},
                      KeyCase{HostKey::kUp, 0, 0}, KeyCase{HostKey::kRight, 0, 0}));

TEST(KeyFunctionTest, ShiftedFunctionKeysHaveTheirAids) {
  EXPECT_EQ(FunctionToAid(13), 0xB1);
  EXPECT_EQ(FunctionToAid(24), 0xBC);
  EXPECT_EQ(FunctionToAid(25), 0);
  EXPECT_EQ(KeyFunction(static_cast<HostKey>(137)), 10);
  for (int n = 1; n <= 12; ++n) EXPECT_EQ(KeyFunction(FunctionKey(n)), n);
}

}  // namespace
}  // namespace veltrix
