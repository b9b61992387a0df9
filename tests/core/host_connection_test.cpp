#include "tn5250/host_connection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "settings/field_registry.h"
#include "tn5250_test_util.h"

namespace veltrix {
namespace {

class FakeLink : public HostLink {
 public:
  void Open(const std::string& a, std::uint16_t p) override {
    ++opens;
    address = a;
    port = p;
    open = true;
  }
  void Send(std::span<const std::uint8_t> bytes) override {
    sent.insert(sent.end(), bytes.begin(), bytes.end());
  }
  void Close() override {
    ++closes;
    open = false;
  }

  bool open = false;
  int opens = 0;
  int closes = 0;
  std::string address;
  std::uint16_t port = 0;
  std::vector<std::uint8_t> sent;
};

class FakeMessages : public SessionMessages {
 public:
  void ShowError(std::string_view text) override { shown.emplace_back(text); }
  std::vector<std::string> shown;
};

class FixedClock : public LocalClock {
 public:
  LocalTime Now() const override { return {2026, 11, 23, 1, 2, 3}; }
};

class TextSink : public LogSink {
 public:
  bool Create() override {
    text.clear();
    return true;
  }
  void Write(std::string_view t) override { text += t; }
  void Close() override {}
  std::string text;
};

class HostConnectionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    doc = std::make_unique<Document>();
    SetDefaults(*doc, 1);
    const FieldDef* entries = FindField("HostIpOrName");
    const FieldDef* port = FindField("TelnetPort");
    const FieldDef* active = FindField("ActiveHostIpOrName");
    if (!entries || !port || !active) GTEST_SKIP() << "host fields not declared";
    WriteText(doc->record, *entries, "old.host", 0);
    WriteText(doc->record, *entries, "10.1.2.3", 2);
    WriteNumber(doc->record, *active, 2);
    WriteNumber(doc->record, *port, 2323);
  }
  // Connects as the program does: the link answers, then the address goes into entry 0.
  bool Connect() {
    if (!connection.Connect(*doc, {127, 0, 0, 1}, true)) return false;
    connection.Opened();
    StoreConnectedAddress(*doc, connection.address());
    return connection.connected();
  }
  std::string Entry(int i) const { return ReadText(doc->record, *FindField("HostIpOrName"), i); }

  std::unique_ptr<Document> doc;
  FakeLink link;
  FakeMessages messages;
  FixedClock clock;
  TextSink sink;
  SessionLog log{sink, clock};
  HostConnection connection{link, log, messages};
};

TEST_F(HostConnectionTest, ReadsTheActiveEntryAndPort) {
  HostSettings s = ReadHostSettings(*doc);
  EXPECT_EQ("10.1.2.3", s.active_entry);
  EXPECT_EQ(2323, s.port);
}

TEST_F(HostConnectionTest, ConnectOpensThePortAndStoresTheAddressInEntryZero) {
  ASSERT_TRUE(Connect());
  EXPECT_TRUE(connection.connected());
  EXPECT_EQ("127.0.0.1", link.address);
  EXPECT_EQ(2323, link.port);
  EXPECT_EQ("127.0.0.1", Entry(0));
  EXPECT_EQ("10.1.2.3", Entry(2));
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ("Connect:20261123123\r\n", sink.text);
}

TEST_F(HostConnectionTest, TheNoAddressValueIsRefusedBeforeAnyConnection) {
  EXPECT_FALSE(connection.Connect(*doc, {255, 255, 255, 255}, true));
  EXPECT_EQ(0, link.opens);
  EXPECT_EQ(std::vector<std::string>{"Invalid Host IP given."}, messages.shown);
  EXPECT_EQ("old.host", Entry(0));
}

TEST_F(HostConnectionTest, AFailedConnectionShowsItsMessageAndLogsWhereToAndWhy) {
  ASSERT_TRUE(connection.Connect(*doc, {127, 0, 0, 1}, true));
  EXPECT_TRUE(connection.connecting());
  EXPECT_TRUE(messages.shown.empty());
  connection.OpenFailed("Connection refused");
  EXPECT_FALSE(connection.connected());
  EXPECT_FALSE(connection.connecting());
  EXPECT_EQ(1, link.closes);
  EXPECT_EQ(std::vector<std::string>{"Can not establish connection"}, messages.shown);
  EXPECT_EQ(
      "Failed:20261123123\r\n"
      "Can not establish connection to 127.0.0.1:2323: Connection refused\r\n",
      sink.text);
  EXPECT_EQ("old.host", Entry(0));
  // A late answer of the given-up attempt changes nothing.
  connection.Opened();
  EXPECT_FALSE(connection.connected());
}

TEST_F(HostConnectionTest, GivingUpWhileConnectingLogsNothing) {
  ASSERT_TRUE(connection.Connect(*doc, {127, 0, 0, 1}, true));
  connection.Disconnect();
  connection.OpenFailed("late");
  connection.Opened();
  EXPECT_FALSE(connection.connected());
  EXPECT_EQ(1, link.closes);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ("", sink.text);
}

TEST_F(HostConnectionTest, TrafficIsLoggedAndAnsweredThroughTheLink) {
  ASSERT_TRUE(Connect());
  const std::uint8_t do_terminal_type[] = {0xFF, 0xFD, 0x18};
  connection.Received(do_terminal_type);
  EXPECT_EQ((std::vector<std::uint8_t>{0xFF, 0xFB, 0x18}), link.sent);
  connection.HostClosed();
  EXPECT_EQ(std::vector<std::string>{"Can not establish connection"}, messages.shown);
  connection.Disconnect();
  EXPECT_EQ(1, link.closes);
  EXPECT_EQ(
      "Connect:20261123123\r\n"
      "Recv:20261123123\r\n"
      "FF FD 18 \r\n"
      "Send:20261123123\r\n"
      "FF FB 18 \r\n"
      "Recv:20261123123\r\n"
      "\r\n"
      "Close:20261123123\r\n",
      sink.text);
  // A second Disconnect finds nothing open.
  connection.Disconnect();
  EXPECT_EQ(1, link.closes);
}

TEST_F(HostConnectionTest, AReceiveErrorIsLoggedWithoutAMessage) {
  ASSERT_TRUE(Connect());
  connection.ReceiveFailed();
  connection.Disconnect();
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(
      "Connect:20261123123\r\n"
      "Recv:20261123123\r\n"
      "\r\n"
      "Close:20261123123\r\n",
      sink.text);
  // After the end nothing more is logged or sent.
  const std::uint8_t bytes[] = {0xFF, 0xFD, 0x18};
  connection.Received(bytes);
  connection.HostClosed();
  EXPECT_TRUE(link.sent.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(HostConnectionTest, KeysDoNothingWhileNotConnected) {
  EXPECT_FALSE(connection.KeyDown(PcKey::kEnter));
  EXPECT_FALSE(connection.Character(U'a'));
  EXPECT_TRUE(link.sent.empty());
}

// The status line: where to, the keyboard, the cursor from 1, and the host's message-waiting
// indicator (Write to Display CC2 0x01 on, 0x02 off).
TEST_F(HostConnectionTest, StatusLineFollowsTheSession) {
  EXPECT_EQ(TerminalStatus{}, connection.Status());
  ASSERT_TRUE(Connect());
  EXPECT_EQ((TerminalStatus{"127.0.0.1:2323", "Input inhibited", "Row 1 Col 1", ""}),
            connection.Status());
  auto screen = [this](std::uint8_t cc2) {
    auto framed = testing::Record({0x04, 0x11, 0x00, cc2, 0x11, 0x06, 0x35});
    framed.push_back(0xFF);
    framed.push_back(0xEF);
    connection.Received(framed);
  };
  screen(0x49);  // unlock, message waiting on, cursor stays at the address
  EXPECT_EQ((TerminalStatus{"127.0.0.1:2323", "Ready", "Row 6 Col 53", "Message waiting"}),
            connection.Status());
  screen(0x4A);
  EXPECT_EQ("", connection.Status().message);
  connection.Disconnect();
  EXPECT_EQ(TerminalStatus{}, connection.Status());
}

}  // namespace
}  // namespace veltrix
