#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>
#include <memory>

#include "resources/text_qt.h"
#include "settings/document.h"
#include "settings/settings_page.h"
#include "shell/settings_page_registry_qt.h"
#include "shell/settings_sheet_dialog.h"

using namespace veltrix;

namespace {

constexpr std::size_t kProbeByte = 30;  // a byte the test page edits

// A page that writes one record byte from a line edit as the user types, like the real pages.
class ProbePage : public SettingsPage {
 public:
  ProbePage(Document& doc, QWidget* parent) : SettingsPage(doc, parent) {
    edit_ = new QLineEdit(this);
    edit_->setObjectName("probe");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(edit_);
    connect(edit_, &QLineEdit::textEdited, this,
            [this](const QString& text) { this->doc().record[kProbeByte] = text.toInt(); });
  }
  void Initialise(Document& doc) override {
    ++initialised;
    edit_->setText(QString::number(doc.record[kProbeByte]));
  }
  void Apply(Document&) override { ++applied; }
  void SetActive(Document&) override { ++activated; }

  int initialised = 0;
  int applied = 0;
  int activated = 0;

 private:
  QLineEdit* edit_;
};

QPushButton* Button(SettingsSheetDialog& sheet, QDialogButtonBox::StandardButton which) {
  return sheet.findChild<QDialogButtonBox*>()->button(which);
}

void TypeInto(SettingsPage* page, const QString& text) {
  auto* edit = page->findChild<QLineEdit*>("probe");
  edit->clear();
  QTest::keyClicks(edit, text);
}

}  // namespace

class SettingsSheetTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    doc_ = std::make_unique<Document>();
    SetDefaults(*doc_, 1);
    registry_ = SettingsPageRegistry();
    registry_.Register<ProbePage>(SheetPageId::kSystem);
    registry_.Register<ProbePage>(SheetPageId::kScreen);
  }

  void hasFiveTabsInOrderAndNoApplyButton() {
    SettingsSheetDialog sheet(*doc_, registry_);
    QCOMPARE(sheet.windowTitle(), QString("Settings"));
    QStringList captions;
    for (int i = 0; i < sheet.tabs()->count(); ++i) captions << sheet.tabs()->tabText(i);
    QCOMPARE(captions, QStringList({"System", "Barcode", "Wireless LAN", "Emulation", "Screen"}));
    QVERIFY(Button(sheet, QDialogButtonBox::Ok));
    QVERIFY(Button(sheet, QDialogButtonBox::Cancel));
    QVERIFY(!Button(sheet, QDialogButtonBox::Apply));
    QCOMPARE(sheet.tabs()->currentIndex(), 0);
  }

  void everyPageIsInstalled() {
    QWidget parent;
    for (const SheetPageInfo& info : kSheetPages) {
      SettingsPage* page = SettingsPageRegistry::Installed().Create(info.id, *doc_, &parent);
      QCOMPARE(page->objectName(), QtText(info.dialog_resource));
    }
  }

  void escapeActsAsCancel() {
    const SettingsRecord before = doc_->record;
    SettingsSheetDialog sheet(*doc_, registry_);
    sheet.show();
    TypeInto(sheet.page(0), "12");
    QTest::keyClick(&sheet, Qt::Key_Escape);
    QVERIFY(doc_->record == before);
  }

 private:
  std::unique_ptr<Document> doc_;
  SettingsPageRegistry registry_;
};

QTEST_MAIN(SettingsSheetTest)
#include "settings_sheet_test.moc"
