#include "capture/screen_page.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>
#include <cmath>

#include "capture/identification.h"
#include "capture/screen_file.h"
#include "resources/fixed_font_qt.h"
#include "resources/text_qt.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/field.h"
#include "settings/rewriting_edit_qt.h"

namespace veltrix {
namespace {

QPushButton* Button(const QString& text, const char* name) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

QLineEdit* ReadOnlyEdit(const char* name, int index) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index + 1));
  edit->setReadOnly(true);
  edit->setFocusPolicy(Qt::NoFocus);
  edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("000")) + 10);
  return edit;
}

// A read-only text view in the fixed-pitch font, sized to show `columns` x `rows` whole.
QPlainTextEdit* FixedPitchView(const char* name, int columns, int rows) {
  auto* view = new QPlainTextEdit;
  view->setObjectName(name);
  view->setReadOnly(true);
  view->setLineWrapMode(QPlainTextEdit::NoWrap);
  view->setFont(FixedPitchFont());
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  view->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  // The text's margins, the frame and the caret, with a little room so that no scroll bar
  // appears for what fits.
  const QFontMetrics metrics(view->font());
  const int margin = 2 * view->frameWidth() +
                     2 * static_cast<int>(std::ceil(view->document()->documentMargin())) + 4;
  view->setFixedSize(metrics.horizontalAdvance(QString(columns, QLatin1Char('M'))) + margin,
                     metrics.lineSpacing() * rows + margin + metrics.lineSpacing() / 2);
  return view;
}

QColor MarkColour(bool characteristic) {
  return characteristic ? QColor(0xff, 0xc8, 0x40) : QColor(0xbf, 0xdc, 0xff);
}

}  // namespace

ScreenPage::ScreenPage(Document& doc, QWidget* parent) : SettingsPage(doc, parent), editor_(doc) {
  setObjectName("SCREEN_DLG");
  ask_file_ = [this]() -> std::optional<std::string> {
    const QString name =
        QFileDialog::getOpenFileName(this, QString(), QString(), QtText(kScreenFileFilter));
    if (name.isEmpty()) return std::nullopt;
    return name.toStdString();
  };
  show_message_ = [this](const QString& caption, const QString& text) {
    QMessageBox::warning(window(), caption, text);
  };
  ask_ = [this](const QString& caption, const QString& text) {
    return QMessageBox::question(window(), caption, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
  };
  Build();
  ConnectControls();
}

void ScreenPage::Build() {
  // Left: the host screen, all 80 columns, with the page count and navigation below it.
  load_ = Button(tr("Load Host Session Screens..."), "load_screens");
  total_ = new QLabel;
  total_->setObjectName("total_pages");
  delete_ = Button(tr("Delete Current Page ..."), "delete_page");
  current_ = new QLabel;
  current_->setObjectName("current_page");
  preview_ = FixedPitchView("preview", kHostScreen.columns, kHostScreen.rows - 1);
  caret_ = new QLabel;
  caret_->setObjectName("caret_position");
  const char* kNavigationNames[] = {"first_page", "previous_page", "next_page", "last_page"};
  const char* kNavigationTexts[] = {"|<<", "<<", ">>", ">>|"};
  auto* navigation = new QHBoxLayout;
  for (int i = 0; i < 4; ++i) {
    navigation_[i] = Button(QString::fromLatin1(kNavigationTexts[i]), kNavigationNames[i]);
    navigation_[i]->setFixedWidth(navigation_[i]->fontMetrics().horizontalAdvance("|<<|") + 14);
    navigation->addWidget(navigation_[i]);
  }
  navigation->addSpacing(12);
  navigation->addWidget(new QLabel(tr("(Row, Column) =")));
  navigation->addWidget(caret_, 1);
  auto* counts = new QGridLayout;
  counts->addWidget(load_, 0, 0);
  counts->addWidget(new QLabel(tr("Total Pages :")), 0, 1);
  counts->addWidget(total_, 0, 2);
  counts->addWidget(delete_, 1, 0);
  counts->addWidget(new QLabel(tr("Current Page :")), 1, 1);
  counts->addWidget(current_, 1, 2);
  counts->setColumnStretch(2, 1);
  // What the colours in the host screen mean.
  auto* legend = new QHBoxLayout;
  for (const bool characteristic : {true, false}) {
    auto* swatch = new QLabel(characteristic ? tr("Characteristic cell") : tr("Input field"));
    swatch->setObjectName(characteristic ? "legend_characteristic" : "legend_input_field");
    swatch->setStyleSheet(
        QStringLiteral("QLabel { background: %1; color: black; padding: 1px 4px; }")
            .arg(MarkColour(characteristic).name()));
    legend->addWidget(swatch);
  }
  legend->addStretch();
  auto* left = new QVBoxLayout;
  left->addWidget(preview_);
  left->addLayout(legend);
  left->addLayout(navigation);
  left->addLayout(counts);
  left->addStretch();

  // Right: the terminal size, the eight visible lines and the page as the terminal shows it.
  reformat_ = new QLabel;
  reformat_->setObjectName("reformat_page");
  size_ = new QComboBox;
  size_->setObjectName("terminal_size");
  auto* size_row = new QHBoxLayout;
  size_row->addWidget(reformat_);
  size_row->addWidget(new QLabel(tr("to :")));
  size_row->addWidget(size_, 1);
  auto* lines = new QGridLayout;
  lines->addWidget(new QLabel(tr("Line No.")), 0, 0);
  lines->addWidget(new QLabel(tr("Field")), 0, 1);
  lines->addWidget(new QLabel(tr("x")), 0, 2);
  lines->addWidget(new QLabel(tr("y")), 0, 3);
  lines->addWidget(new QLabel(tr("Terminal Screen")), 0, 4);
  for (int s = 0; s < kVisibleLines; ++s) {
    numbers_[s] = new QLabel;
    numbers_[s]->setObjectName(QStringLiteral("line_number_%1").arg(s + 1));
    fields_[s] = new QComboBox;
    fields_[s]->setObjectName(QStringLiteral("line_field_%1").arg(s + 1));
    fields_[s]->setMinimumContentsLength(3);
    xs_[s] = ReadOnlyEdit("line_x", s);
    ys_[s] = ReadOnlyEdit("line_y", s);
    texts_[s] = new QLineEdit;
    texts_[s]->setObjectName(QStringLiteral("line_text_%1").arg(s + 1));
    texts_[s]->setFont(FixedPitchFont());
    texts_[s]->setMinimumWidth(texts_[s]->fontMetrics().horizontalAdvance(QString(16, 'M')) + 12);
    lines->addWidget(numbers_[s], s + 1, 0);
    lines->addWidget(fields_[s], s + 1, 1);
    lines->addWidget(xs_[s], s + 1, 2);
    lines->addWidget(ys_[s], s + 1, 3);
    lines->addWidget(texts_[s], s + 1, 4);
  }
  lines->setColumnStretch(4, 1);
  lines_back_ = Button(QStringLiteral("<<"), "lines_back");
  lines_forward_ = Button(QStringLiteral(">>"), "lines_forward");
  reset_ = Button(tr("Reset"), "reset");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(lines_back_);
  buttons->addWidget(lines_forward_);
  buttons->addStretch();
  buttons->addWidget(reset_);
  // The widest size has 40 characters; 16 lines show without scrolling.
  terminal_ = FixedPitchView("terminal_preview", 40, 16);
  terminal_->setStyleSheet(
      QStringLiteral("QPlainTextEdit { background: #20302a; color: #c8f0d0; }"));
  auto* right = new QVBoxLayout;
  right->addLayout(size_row);
  right->addLayout(lines);
  right->addLayout(buttons);
  right->addWidget(new QLabel(tr("On the terminal :")));
  right->addWidget(terminal_);
  right->addStretch();

  auto* layout = new QHBoxLayout(this);
  layout->addLayout(left, 0);
  layout->addLayout(right, 1);
}

void ScreenPage::ConnectControls() {
  connect(load_, &QPushButton::clicked, this, &ScreenPage::LoadFile);
  connect(delete_, &QPushButton::clicked, this, &ScreenPage::DeletePage);
  auto on = [this](QPushButton* button, void (ScreenEditor::*action)()) {
    connect(button, &QPushButton::clicked, this, [this, action] {
      (editor_.*action)();
      ShowView();
    });
  };
  on(navigation_[0], &ScreenEditor::First);
  on(navigation_[1], &ScreenEditor::Previous);
  on(navigation_[2], &ScreenEditor::Next);
  on(navigation_[3], &ScreenEditor::Last);
  on(lines_back_, &ScreenEditor::LinesBack);
  on(lines_forward_, &ScreenEditor::LinesForward);
  on(reset_, &ScreenEditor::Reset);
  connect(size_, &QComboBox::activated, this, [this](int index) {
    editor_.ChooseSize(index);
    ShowView();
  });
  for (int s = 0; s < kVisibleLines; ++s) {
    connect(fields_[s], &QComboBox::activated, this, [this, s](int choice) {
      editor_.ChooseField(s, choice);
      ShowView();
    });
    connect(texts_[s], &QLineEdit::textEdited, this, [this, s](const QString& text) {
      // Stored in the terminal's single-byte code, as every page stores text.
      editor_.EditText(s, ToRecordText(text));
      ShowTerminal(editor_.Show().terminal);
    });
  }
  connect(preview_, &QPlainTextEdit::cursorPositionChanged, this, [this] {
    const QTextCursor cursor = preview_->textCursor();
    caret_->setText(
        QStringLiteral("(%1, %2)").arg(cursor.blockNumber()).arg(cursor.positionInBlock()));
  });
}

void ScreenPage::Initialise(Document&) {
  editor_.Restart();
  FillSizes();
  ShowView();
  preview_->setFocus();
}

void ScreenPage::SetActive(Document& doc) {
  if (static_cast<int>(ReadNumber(doc.record, kFontSize)) != sizes_font_) {
    FillSizes();
    editor_.FirstLines();  // the new size may have fewer lines than were scrolled past
    ShowView();
  }
}

void ScreenPage::Apply(Document& /*doc*/) { editor_.PadLineTexts(kHostScreen.rows); }

void ScreenPage::FillSizes() {
  sizes_font_ = static_cast<int>(ReadNumber(doc().record, kFontSize));
  const QSignalBlocker block(size_);
  size_->clear();
  for (const std::string& entry : editor_.Show().sizes)
    size_->addItem(QString::fromStdString(entry));
}

void ScreenPage::LoadFile() {
  const std::optional<std::string> name = ask_file_();
  if (!name) return;
  const LoadOutcome outcome = LoadScreenFileInto(doc(), *name);
  for (const LoadOutcome::Message& m : outcome.messages) {
    show_message_(QString::fromStdString(m.caption), QString::fromStdString(m.text));
  }
  if (!outcome.loaded) return;
  editor_.Restart();
  ShowView();
  preview_->setFocus();
}

void ScreenPage::DeletePage() {
  if (!ask_(QStringLiteral("Screen"), QtText(kDeletePageQuestion))) return;
  editor_.DeleteCurrent();
  ShowView();
}

void ScreenPage::ShowView() {
  const ScreenEditor::View v = editor_.Show();
  total_->setText(QString::number(v.total));
  current_->setText(QString::number(v.current));
  reformat_->setText(tr("Reformat page %1").arg(v.current));
  // Without the last row's line feed, which would add an empty line to scroll to.
  QString preview = QString::fromLatin1(v.preview.data(), static_cast<qsizetype>(v.preview.size()));
  if (preview.endsWith(QLatin1Char('\n'))) preview.chop(1);
  preview_->setPlainText(preview);
  MarkCells(v.marks);
  ShowTerminal(v.terminal);
  caret_->setText(QStringLiteral("(0, 0)"));
  navigation_[0]->setEnabled(v.first);
  navigation_[1]->setEnabled(v.previous);
  navigation_[2]->setEnabled(v.next);
  navigation_[3]->setEnabled(v.last);
  delete_->setEnabled(v.remove);
  {
    const QSignalBlocker block(size_);
    size_->setCurrentIndex(v.size);
  }
  QStringList choices;
  for (const std::string& c : v.field_choices) choices << QString::fromStdString(c);
  for (int s = 0; s < kVisibleLines; ++s) {
    const ScreenEditor::LineView& line = v.lines[s];
    const QSignalBlocker block_field(fields_[s]);
    const QSignalBlocker block_text(texts_[s]);
    numbers_[s]->setText(QString::number(line.number));
    fields_[s]->clear();
    fields_[s]->addItems(choices);
    fields_[s]->setCurrentIndex(line.field_choice);
    xs_[s]->setText(QString::fromStdString(line.x));
    ys_[s]->setText(QString::fromStdString(line.y));
    texts_[s]->setMaxLength(v.text_limit);
    texts_[s]->setText(FromRecordText(line.text));
    texts_[s]->setCursorPosition(0);
    for (QWidget* w : std::initializer_list<QWidget*>{numbers_[s], fields_[s], texts_[s]}) {
      w->setEnabled(line.enabled);
    }
  }
  lines_back_->setEnabled(v.lines_back);
  lines_forward_->setEnabled(v.lines_forward);
}

}  // namespace veltrix

namespace veltrix {

void ScreenPage::MarkCells(const std::vector<ScreenEditor::View::Mark>& marks) {
  // Input fields first, so that a characteristic cell inside one shows as characteristic.
  QList<QTextEdit::ExtraSelection> selections;
  const int rows = kHostScreen.rows - 1;
  const int columns = kHostScreen.columns;
  for (const bool characteristic : {false, true}) {
    QTextCharFormat format;
    format.setBackground(MarkColour(characteristic));
    format.setForeground(Qt::black);
    if (!characteristic) format.setFontUnderline(true);
    for (const ScreenEditor::View::Mark& m : marks) {
      if (m.characteristic != characteristic) continue;
      // A field may run on over the row's end; each row of it is its own selection.
      for (int cell = m.row * columns + m.column, end = cell + m.length; cell < end;) {
        const int row = cell / columns;
        if (cell < 0 || row >= rows) break;
        const int run = std::min(end - cell, columns - cell % columns);
        QTextCursor cursor(preview_->document()->findBlockByNumber(row));
        cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, cell % columns);
        cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, run);
        selections.append({cursor, format});
        cell += run;
      }
    }
  }
  preview_->setExtraSelections(selections);
}

void ScreenPage::ShowTerminal(const TerminalPreview& terminal) {
  QString text;
  for (const std::string& line : terminal.lines) {
    if (!text.isEmpty()) text += QLatin1Char('\n');
    text += QString::fromLatin1(line.data(), static_cast<qsizetype>(line.size()));
  }
  terminal_->setPlainText(text);
}

}  // namespace veltrix
