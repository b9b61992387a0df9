#include <gtest/gtest.h>

#include "tn5250_test_util.h"

namespace veltrix {
namespace {

using testing::Hex;
using testing::HexText;
using testing::Record;
using testing::RecordingListener;

class DataStreamTest : public ::testing::Test {
 protected:
  void Feed(const std::vector<std::uint8_t>& bytes) { session.Receive(bytes); }
  void FeedRecord(std::string_view body) { Feed(Record(Hex(body))); }
  RecordingListener listener;
  Session session{{}, &listener};
};

TEST_F(DataStreamTest, WriteToDisplayPutsLettersAtTheBufferAddress) {
  FeedRecord("04 40 04 11 00 00 11 05 0A C1 C2");
  const PresentationSpace& ps = session.Screen();
  EXPECT_EQ(ps.Character(4, 9), 'A');
  EXPECT_EQ(ps.Character(4, 10), 'B');
  EXPECT_EQ(ps.Attribute(4, 9), 0);
  EXPECT_EQ(ps.CursorColumn(), 0);  // the move-cursor flag places the cursor at (0,0)
}

TEST_F(DataStreamTest, CursorStaysWhereOrdersLeftItWhenCc2SaysSo) {
  FeedRecord("04 40 04 11 00 40 11 05 0A C1 C2");
  EXPECT_EQ(session.CursorRow(), 4);
  EXPECT_EQ(session.CursorColumn(), 11);
}

TEST_F(DataStreamTest, RecordOfLengthTenEndsAfterItsHeader) {
  FeedRecord("");
  FeedRecord("04 40 04 11 00 40 11 01 00 C1");
  EXPECT_EQ(session.Screen().Character(0, 0), 'A');
}

}  // namespace
}  // namespace veltrix
