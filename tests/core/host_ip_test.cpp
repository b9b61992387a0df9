#include "tn5250/host_ip.h"

#include <gtest/gtest.h>

#include <ostream>

namespace veltrix {
namespace {

struct SplitCase {
  const char* entry;
  HostOctets before;
  HostOctets after;
};

void PrintTo(const SplitCase& c, std::ostream* os) { *os << '"' << c.entry << '"'; }

class SplitHostAddressTest : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitHostAddressTest, FillsOctetsFromTheEntry) {
  HostOctets octets = GetParam().before;
  SplitHostAddress(GetParam().entry, octets);
  EXPECT_EQ(GetParam().after, octets);
}

INSTANTIATE_TEST_SUITE_P(
    Entries, SplitHostAddressTest,
    ::testing::Values(SplitCase{"192.168.1.20", {9, 9, 9, 9}, {192, 168, 1, 20}},
                      // A host name: its one piece is not a number and gives 0.
                      SplitCase{"myhost", {9, 9, 9, 9}, {0, 9, 9, 9}},
                      SplitCase{"as400.example.com", {1, 2, 3, 4}, {0, 0, 0, 4}},
                      SplitCase{"10.0", {1, 2, 3, 4}, {10, 0, 3, 4}},
                      SplitCase{"", {1, 2, 3, 4}, {0, 2, 3, 4}},
                      SplitCase{"1.2.3.4.5.6", {0, 0, 0, 0}, {1, 2, 3, 4}},
                      // Leading digits count, the rest of a piece does not.
                      SplitCase{"12ab.7x.300.04", {0, 0, 0, 0}, {12, 7, 300, 4}}));

TEST(ParseOctet, AcceptsNumbersInRangeOnly) {
  EXPECT_EQ(0u, ParseOctet("0"));
  EXPECT_EQ(255u, ParseOctet("255"));
  EXPECT_EQ(7u, ParseOctet("007"));
  EXPECT_EQ(12u, ParseOctet(" 12 "));
  for (const char* bad : {"", " ", "256", "-1", "1a", "a", "1.5", "99999999999999999999"}) {
    EXPECT_FALSE(ParseOctet(bad).has_value()) << bad;
  }
}

TEST(HostAddress, FormatsAndConverts) {
  HostOctets octets{127, 0, 0, 1};
  EXPECT_EQ("127.0.0.1", FormatHostAddress(octets));
  EXPECT_EQ(0x7F000001u, HostAddressValue(octets));
  EXPECT_EQ(0u, HostAddressValue({0, 0, 0, 0}));
}

TEST(HostAddress, AllOnesIsTheNoAddressValue) {
  EXPECT_FALSE(HostAddressValue({255, 255, 255, 255}).has_value());
  EXPECT_TRUE(HostAddressValue({255, 255, 255, 254}).has_value());
  EXPECT_FALSE(HostAddressValue({256, 0, 0, 1}).has_value());
}

TEST(HostIpForm, OpensUncheckedFromTheActiveEntryAndKeepsOctetsBetweenOpenings) {
  HostIpForm form;
  form.Open("10.1.2.3");
  ASSERT_TRUE(form.Confirm({"10", "1", "2", "3"}, true));
  EXPECT_TRUE(form.save_log());
  form.Open("172.16");
  EXPECT_FALSE(form.save_log());
  EXPECT_EQ((HostOctets{172, 16, 2, 3}), form.octets());
}

TEST(HostIpForm, EditsTakeOnlyValidOctets) {
  HostIpForm form;
  form.Open("1.2.3.4");
  form.EditChanged(0, "300");
  form.EditChanged(1, "x");
  form.EditChanged(2, "");
  form.EditChanged(3, "99");
  form.EditChanged(7, "5");
  EXPECT_EQ((HostOctets{1, 2, 3, 99}), form.octets());
}

TEST(HostIpForm, ConfirmRefusesAnyBadEditAndChangesNothing) {
  HostIpForm form;
  form.Open("1.2.3.4");
  EXPECT_FALSE(form.Confirm({"1", "2", "256", "4"}, true));
  EXPECT_FALSE(form.Confirm({"1", "", "3", "4"}, true));
  EXPECT_FALSE(form.save_log());
  EXPECT_EQ((HostOctets{1, 2, 3, 4}), form.octets());
  EXPECT_TRUE(form.Confirm({"127", "0", "0", "1"}, false));
  EXPECT_EQ((HostOctets{127, 0, 0, 1}), form.octets());
}

}  // namespace
}  // namespace veltrix
