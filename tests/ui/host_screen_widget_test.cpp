#include "tn5250/host_screen_widget.h"

#include <QImage>
#include <QtTest>
#include <memory>
#include <vector>

#include "demo_host/outbound_record.h"
#include "settings/document.h"
#include "settings/field_registry.h"
#include "tn5250/double_byte.h"
#include "tn5250/host_connection.h"
#include "tn5250/host_keys_qt.h"

namespace veltrix {

namespace {

// A link that connects to nothing and keeps what is sent.
class NullLink : public HostLink {
 public:
  void Open(const std::string&, std::uint16_t) override {}
  void Send(std::span<const std::uint8_t> bytes) override {
    sent.insert(sent.end(), bytes.begin(), bytes.end());
  }
  void Close() override {}
  std::vector<std::uint8_t> sent;
};

class NoMessages : public SessionMessages {
 public:
  void ShowError(std::string_view) override {}
};

class NoClock : public LocalClock {
 public:
  LocalTime Now() const override { return {}; }
};

class NoSink : public LogSink {
 public:
  bool Create() override { return false; }
  void Write(std::string_view) override {}
  void Close() override {}
};

bool AnyDark(const QImage& image, const QRect& r) {
  for (int y = r.top(); y <= r.bottom(); ++y) {
    for (int x = r.left(); x <= r.right(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) return true;
    }
  }
  return false;
}

bool AllDark(const QImage& image, const QRect& r) {
  for (int y = r.top(); y <= r.bottom(); ++y) {
    for (int x = r.left(); x <= r.right(); ++x) {
      if (qGray(image.pixel(x, y)) >= 128) return false;
    }
  }
  return true;
}

}  // namespace

class HostScreenWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
    log_ = std::make_unique<SessionLog>(sink_, clock_);
    connection_ = std::make_unique<HostConnection>(link_, *log_, messages_);
    screen_ = std::make_unique<HostScreenWidget>();
    screen_->SetConnection(connection_.get());
  }
  void cleanup() {
    screen_.reset();
    connection_.reset();
  }
  void cellSizeFollowsTheWindow_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("cell_width");
    QTest::addColumn<int>("row_height");
    QTest::newRow("640 x 480") << QSize(640, 480) << 8 << 19;
    // Where the minimum cell would hide the last rows, the cell shrinks so that row 24 shows.
    QTest::newRow("too low") << QSize(640, 200) << 8 << 8;
    QTest::newRow("800 x 500 window") << QSize(780, 410) << 9 << 17;
    QTest::newRow("narrow") << QSize(400, 480) << 5 << 19;
    QTest::newRow("large") << QSize(1280, 1024) << 16 << 41;
  }
  void cellSizeFollowsTheWindow() {
    QFETCH(QSize, size);
    QFETCH(int, cell_width);
    QFETCH(int, row_height);
    // `size` is the client area, inside the sunken edge.
    const int edge = screen_->frameWidth();
    screen_->resize(size + QSize(2 * edge, 2 * edge));
    screen_->show();
    QCOMPARE(screen_->metrics().cell_width, cell_width);
    QCOMPARE(screen_->metrics().row_height(), row_height);
    QCOMPARE(screen_->CellRectangle(2, 3),
             QRect(3 * cell_width + edge, 2 * row_height + edge, cell_width, row_height));
    QVERIFY(screen_->contentsRect().contains(screen_->CellRectangle(23, 79)));
  }
  void drawsRunsByTheirLowAttributeBits() {
    Open(0);
    demo_host::OutboundRecord r;
    r.ClearUnit().WriteToDisplay(0x00, 0x08);
    r.TextAt(1, 2, "HELLO");
    r.TextAt(3, 2, "REVERSE", 0x21);
    r.TextAt(5, 2, "SECRET", 0x27);
    r.TextAt(7, 2, "UNDER", 0x24);
    Feed(r.Finish());
    // Text placed at column 2 starts in the second cell.
    QCOMPARE(screen_->RowText(0).mid(1, 5), QStringLiteral("HELLO"));
    QCOMPARE(screen_->RowText(4).mid(1, 6), QStringLiteral("      "));
    QCOMPARE(screen_->RowText(6).mid(1, 5), QStringLiteral("UNDER"));

    screen_->resize(640, 480);
    const QImage image = screen_->grab().toImage();
    const int ch = screen_->metrics().character_height;
    // Normal text: black on white.
    QVERIFY(AnyDark(image, screen_->CellRectangle(0, 1)));
    QVERIFY(!AllDark(image, screen_->CellRectangle(0, 1)));
    // Reverse image: the cell's background is black.
    const QRect rev = screen_->CellRectangle(2, 3);
    QVERIFY(AllDark(image, QRect(rev.left(), rev.top(), 1, 2)));
    // Not displayed: nothing but background.
    for (int c = 1; c < 7; ++c) QVERIFY(!AnyDark(image, screen_->CellRectangle(4, c)));
    // Underline: a line under the run's cells, on the row's last pixel line.
    const QRect under = screen_->CellRectangle(6, 1);
    QVERIFY(AllDark(image, QRect(under.left(), under.top() + ch + 1, 5 * under.width() - 1, 1)));
    QVERIFY(!AnyDark(image, QRect(under.left() + 5 * under.width(), under.top() + ch + 1, 8, 1)));
    // Nothing under the plain text.
    const QRect plain = screen_->CellRectangle(0, 1);
    QVERIFY(!AnyDark(image, QRect(plain.left(), plain.top() + ch + 1, 5 * plain.width(), 1)));

    // At 150% every underline has one thickness, whatever row it is on.
    r = demo_host::OutboundRecord();
    r.ClearUnit().WriteToDisplay(0x00, 0x08);
    for (int row = 1; row <= 8; ++row) r.TextAt(row, 2, "UNDER", 0x24);
    Feed(r.Finish());
    QImage scaled(screen_->size() * 1.5, QImage::Format_RGB32);
    scaled.setDevicePixelRatio(1.5);
    screen_->render(&scaled);
    QSet<int> thicknesses;
    for (int row = 0; row < 8; ++row) {
      const QRect cell = screen_->CellRectangle(row, 2);
      const int x = static_cast<int>((cell.left() + 2) * 1.5);
      int dark = 0;
      for (int y = static_cast<int>((cell.top() + ch) * 1.5);
           y < static_cast<int>((cell.bottom() + 3) * 1.5) && y < scaled.height(); ++y) {
        dark += qGray(scaled.pixel(x, y)) < 128 ? 1 : 0;
      }
      thicknesses.insert(dark);
    }
    QCOMPARE(thicknesses.size(), 1);
  }
  void showsDoubleByteCharactersInTwoCells() {
    Open(1);
    // The first host pair whose character is an ideograph.
    std::uint8_t pair[2] = {0, 0};
    char32_t ideograph = 0;
    for (int first = 0x4C; first < 0x70 && ideograph == 0; ++first) {
      for (int second = 0x41; second < 0xFE && ideograph == 0; ++second) {
        std::uint8_t a = static_cast<std::uint8_t>(first), b = static_cast<std::uint8_t>(second);
        if (!ConvertDoubleByte(1, a, b)) continue;
        char32_t c = DoubleByteToUnicode(1, a, b);
        if (c >= 0x4E00 && c <= 0x9FFF) {
          ideograph = c;
          pair[0] = static_cast<std::uint8_t>(first);
          pair[1] = static_cast<std::uint8_t>(second);
        }
      }
    }
    QVERIFY(ideograph != 0);
    demo_host::OutboundRecord r;
    r.ClearUnit().WriteToDisplay(0x00, 0x08);
    r.TextAt(2, 11, "A");
    const std::uint8_t shifted[] = {0x0E, pair[0], pair[1], 0x0F};
    r.Raw(shifted);
    Feed(r.Finish());
    const QString row = screen_->RowText(1);
    QVERIFY2(row.contains(QString::fromUcs4(&ideograph, 1)), qPrintable(row));
    screen_->resize(640, 480);
    const QImage image = screen_->grab().toImage();
    const int column = row.indexOf(QString::fromUcs4(&ideograph, 1));
    QVERIFY(AnyDark(image, screen_->CellRectangle(1, column)));
  }
  void caretShowsOnlyWhileFocused() {
    Open(0);
    demo_host::OutboundRecord r;
    r.ClearUnit().WriteToDisplay(0x00, 0x08).InsertCursor(4, 11);
    Feed(r.Finish());
    const int row = connection_->session().CursorRow();
    const int column = connection_->session().CursorColumn();
    screen_->resize(640, 480);
    const QRect cell = screen_->CellRectangle(row, column);
    const QRect block(cell.left(), cell.top(), cell.width(), screen_->metrics().character_height);
    QVERIFY(!AnyDark(screen_->grab().toImage(), block));
    screen_->show();
    screen_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(screen_.get()));
    screen_->setFocus();
    QTRY_VERIFY(screen_->hasFocus());
    QVERIFY(AllDark(screen_->grab().toImage(), block));
    // Only that cell.
    QVERIFY(!AnyDark(screen_->grab().toImage(), screen_->CellRectangle(row, column + 1)));
  }
  void qtKeysMapToPcKeys_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("keypad");
    QTest::addColumn<int>("pc_key");
    QTest::newRow("pad plus") << int(Qt::Key_Plus) << true << int(PcKey::kPadPlus);
    QTest::newRow("main plus types") << int(Qt::Key_Plus) << false << int(PcKey::kOther);
    QTest::newRow("pad minus") << int(Qt::Key_Minus) << true << int(PcKey::kPadMinus);
    QTest::newRow("main minus types") << int(Qt::Key_Minus) << false << int(PcKey::kOther);
    QTest::newRow("return") << int(Qt::Key_Return) << false << int(PcKey::kEnter);
    QTest::newRow("pad enter") << int(Qt::Key_Enter) << true << int(PcKey::kEnter);
    QTest::newRow("shift tab") << int(Qt::Key_Backtab) << false << int(PcKey::kTab);
    QTest::newRow("escape") << int(Qt::Key_Escape) << false << int(PcKey::kEscape);
    QTest::newRow("page down") << int(Qt::Key_PageDown) << false << int(PcKey::kPageDown);
    QTest::newRow("F12") << int(Qt::Key_F12) << false << int(PcKey::kF12);
    QTest::newRow("F13 has no key") << int(Qt::Key_F13) << false << int(PcKey::kOther);
    QTest::newRow("insert") << int(Qt::Key_Insert) << false << int(PcKey::kOther);
  }
  void qtKeysMapToPcKeys() {
    QFETCH(int, key);
    QFETCH(bool, keypad);
    QFETCH(int, pc_key);
    QCOMPARE(int(PcKeyFromQt(key, keypad ? Qt::KeypadModifier : Qt::NoModifier)), pc_key);
  }

 private:
  void Open(int emulation_type) {
    WriteNumber(doc_->record, *FindField("EmulationType"),
                static_cast<std::uint32_t>(emulation_type));
    QVERIFY(connection_->Connect(*doc_, {127, 0, 0, 1}, false));
    connection_->Opened();
  }
  void Feed(const std::vector<std::uint8_t>& record) {
    std::vector<std::uint8_t> framed = demo_host::FrameRecord(record);
    connection_->Received(framed);
  }

  std::unique_ptr<Document> doc_;
  NullLink link_;
  NoMessages messages_;
  NoClock clock_;
  NoSink sink_;
  std::unique_ptr<SessionLog> log_;
  std::unique_ptr<HostConnection> connection_;
  std::unique_ptr<HostScreenWidget> screen_;
};

}  // namespace veltrix

QTEST_MAIN(veltrix::HostScreenWidgetTest)
#include "host_screen_widget_test.moc"
