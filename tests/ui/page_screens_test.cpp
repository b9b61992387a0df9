// Every page of the settings sheet and every dialog shape it opens, as a user first sees them:
// no caption cut short, Tab going through one group at a time, and a screenshot of each in
// screens/ (run under Xvfb at 1024x768 and with QT_SCALE_FACTOR=1.5 to look at them).
#include <QAbstractButton>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>
#include <memory>
#include <vector>

#include "download/download_dialog.h"
#include "settings/document.h"
#include "settings/emulation/function_key_dialog.h"
#include "settings/grid/grid_dialog.h"
#include "settings/reader/advanced_barcode_dialog.h"
#include "settings/reader/rfid_dialog.h"
#include "settings/reader/symbology_dialog.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"
#include "tn5250/certificate_dialog.h"
#include "tn5250/host_ip_dialog.h"

using namespace veltrix;

namespace {

// Captions shown in full: every visible label, check box and radio button is at least as wide as
// its text needs, a push button (which the style may keep narrower than its usual width) as its
// text.
QStringList CutCaptions(QWidget* window) {
  QStringList cut;
  for (QWidget* w : window->findChildren<QWidget*>()) {
    if (!w->isVisibleTo(window)) continue;
    QString text;
    if (auto* button = qobject_cast<QAbstractButton*>(w)) text = button->text();
    if (auto* label = qobject_cast<QLabel*>(w); label != nullptr && !label->wordWrap()) {
      text = label->text();
    }
    if (text.isEmpty()) continue;
    const int needed = qobject_cast<QPushButton*>(w) != nullptr
                           ? w->fontMetrics().horizontalAdvance(QString(text).remove('&')) + 4
                           : w->minimumSizeHint().width();
    if (w->width() < needed)
      cut << QStringLiteral("%1 (%2 < %3)").arg(text).arg(w->width()).arg(needed);
  }
  return cut;
}

// The groups Tab goes through, in order: a group met twice means Tab left it and came back.
QStringList GroupsLeftAndEnteredAgain(QWidget* window) {
  QStringList seen;
  QStringList again;
  QWidget* w = window;
  for (int steps = 0; steps < 500; ++steps) {
    w = w->nextInFocusChain();
    if (w == window) break;
    if (!w->isVisibleTo(window) || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)) continue;
    QWidget* up = w->parentWidget();
    while (up != nullptr && up != window && qobject_cast<QGroupBox*>(up) == nullptr) {
      up = up->parentWidget();
    }
    auto* group = qobject_cast<QGroupBox*>(up);
    const QString name = group != nullptr ? group->title() : QString();
    if (seen.isEmpty() || seen.last() != name) {
      if (!name.isEmpty() && seen.contains(name)) again << name;
      seen << name;
    }
  }
  return again;
}

void Look(QWidget* window, const QString& name) {
  window->show();
  QVERIFY(QTest::qWaitForWindowExposed(window));
  const QStringList cut = CutCaptions(window);
  QVERIFY2(cut.isEmpty(), qPrintable("cut short: " + cut.join(", ")));
  const QStringList again = GroupsLeftAndEnteredAgain(window);
  QVERIFY2(again.isEmpty(), qPrintable("Tab comes back to: " + again.join(", ")));
  const QString folder =
      QDir(VELTRIX_BINARY_DIR)
          .filePath(QStringLiteral("screens/%1x").arg(window->devicePixelRatioF()));
  QVERIFY(QDir().mkpath(folder));
  QVERIFY(window->grab().save(QDir(folder).filePath(name + ".png")));
}

}  // namespace

class PageScreensTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 3);  // the product that enables every control
  }

  void sheetPages_data() {
    QTest::addColumn<int>("index");
    for (int i = 0; i < 5; ++i) QTest::newRow(qPrintable(QString::number(i))) << i;
  }
  void sheetPages() {
    QFETCH(int, index);
    SettingsSheetDialog sheet(*doc_, SettingsPageRegistry::Installed());
    sheet.tabs()->setCurrentIndex(index);
    Look(&sheet, QStringLiteral("sheet_%1_%2").arg(index).arg(sheet.tabs()->tabText(index)));
  }

  void dialogs() {
    const auto look = [](QDialog&& dialog, const char* name) { Look(&dialog, name); };
    look(LinearOptionsDialog(*doc_, *FindLinearOptionDialog("Industrial25Dlg")), "linear_length");
    look(LinearOptionsDialog(*doc_, *FindLinearOptionDialog("EAN13Dlg")), "linear_checks");
    look(TwoDOptionsDialog(*doc_, *FindTwoDOptionDialog("UPCA_2D_DLG")), "two_d_lists");
    look(TwoDOptionsDialog(*doc_, *FindTwoDOptionDialog("MSI_2D_DLG")), "two_d_length_option");
    look(RfidDialog(*doc_), "rfid");
    look(AdvancedBarcodeDialog(*doc_), "advanced_barcode_settings");
    look(FunctionKeyDialog(*doc_, 1), "function_key_mapping");
    const std::uint8_t codes[] = {0x41, 0x0D};
    look(GridDialog(GridMode::kKeyNames, 9, codes), "grid_key_names");
    look(GridDialog(GridMode::kHex, 10, codes), "grid_hex");
    look(GridDialog(GridMode::kKeyCodes, 1, codes), "grid_key_codes");
    HostIpForm form;
    HostIpDialog connect(form, "127.0.0.1");
    connect.use_tls_box()->setChecked(true);
    Look(&connect, "connect_tls");
    look(DownloadPropertiesDialog(1, 2, {"ttyS0", "ttyUSB0"}), "download_properties");
    look(DownloadProgressDialog(598), "download_progress");
    CertificateFacts facts{.subject = "127.0.0.1",
                           .issuer = "127.0.0.1",
                           .problems = {CertificateProblem::kSelfSigned}};
    TrustedCertificates trusted;
    trusted.Trust("10.0.0.5", "SHA256:00");
    look(CertificateDialog("127.0.0.1", facts, CertificateVerdict::kAsk, trusted, {}),
         "certificate");
  }

 private:
  std::unique_ptr<Document> doc_;
};

QTEST_MAIN(PageScreensTest)
#include "page_screens_test.moc"
