// The Wireless LAN page driven as a user does, alone and inside the settings sheet.
#include "settings/network/wireless_lan_page.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>
#include <memory>

#include "settings/document.h"
#include "settings/network/network_settings.h"
#include "support/page_test.h"

using namespace veltrix;

class WirelessLanPageTest : public QObject, testing::PageUnderTest<WirelessLanPage> {
  Q_OBJECT

 private slots:
  void init() { OpenPage(2); }
  void cleanup() { ClosePage(); }

  // Typed into the host combo while entry 3 is active: entry 3 changes, the others stay; OK
  // pads the active entry only.
  void hostComboEditsTheActiveEntry() {
    WriteText(doc_->record, kHostIpOrName, "abcdef", 1);
    WriteText(doc_->record, kHostIpOrName, "x", 1);  // "def" stays behind the NUL
    auto* hosts = Find<QComboBox>("host");
    page_->SetActive(*doc_);
    hosts->setCurrentIndex(2);
    QCOMPARE(ReadNumber(doc_->record, kActiveHostIpOrName), 2u);
    hosts->lineEdit()->clear();
    QTest::keyClicks(hosts->lineEdit(), "host.example");
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kHostIpOrName, 2)),
             QString("host.example"));
    QCOMPARE(hosts->itemText(2), QString("host.example"));
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kHostIpOrName, 0)),
             QString("192.168.1.10"));
    page_->Apply(*doc_);
    QCOMPARE(doc_->record[kHostIpOrName.OffsetOf(1) + 3], std::uint8_t('d'));
    for (std::uint32_t i = 12; i < 50; ++i) {
      QCOMPARE(doc_->record[kHostIpOrName.OffsetOf(2) + i], std::uint8_t(0));
    }
  }

  // Text typed into the active entry stays there, whatever other entries hold: no completion
  // from them, and neither Enter nor leaving the box makes another entry active.
  void hostTextStaysInTheActiveEntry_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("a prefix of entry 1") << "192.168.1.1";
    QTest::newRow("entry 1 in other case") << "HOST.EXAMPLE";
    QTest::newRow("entry 1 itself") << "host.example";
  }
  void hostTextStaysInTheActiveEntry() {
    QFETCH(QString, typed);
    WriteText(doc_->record, kHostIpOrName, "192.168.1.10", 0);
    WriteText(doc_->record, kHostIpOrName, "host.example", 1);
    page_->SetActive(*doc_);
    auto* hosts = Find<QComboBox>("host");
    hosts->setCurrentIndex(2);
    page_->show();
    page_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page_.get()));
    hosts->lineEdit()->setFocus();
    hosts->lineEdit()->clear();
    QTest::keyClicks(hosts->lineEdit(), typed);
    QTest::keyClick(hosts->lineEdit(), Qt::Key_Return);
    Find<QLineEdit>("telnet_port")->setFocus();  // leaving the box
    QCoreApplication::processEvents();
    QCOMPARE(ReadNumber(doc_->record, kActiveHostIpOrName), 2u);
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kHostIpOrName, 2)), typed);
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kHostIpOrName, 0)),
             QString("192.168.1.10"));
    QCOMPARE(QString::fromStdString(ReadText(doc_->record, kHostIpOrName, 1)),
             QString("host.example"));
    QCOMPARE(hosts->currentIndex(), 2);
    QCOMPARE(hosts->currentText(), typed);
  }

 private:
  QString Text(const FieldDef& field) {
    return QString::fromStdString(ReadText(doc_->record, field));
  }
};

QTEST_MAIN(WirelessLanPageTest)
#include "wireless_lan_page_test.moc"
