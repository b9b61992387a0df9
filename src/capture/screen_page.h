#ifndef VELTRIX_CAPTURE_SCREEN_PAGE_H_
#define VELTRIX_CAPTURE_SCREEN_PAGE_H_

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "capture/screen_editor.h"
#include "settings/settings_page.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace veltrix {

// The "Screen" page of the settings sheet (dialog "SCREEN_DLG"): loads a screen file, steps
// through the pages with a preview of each host screen, and maps the terminal's lines to texts
// and host fields. Every control writes the record at once through ScreenEditor.
class ScreenPage : public SettingsPage {
  Q_OBJECT

 public:
  ScreenPage(Document& doc, QWidget* parent = nullptr);

  void Initialise(Document& doc) override;
  void SetActive(Document& doc) override;
  void Apply(Document& doc) override;

  // The open-file dialog and the message boxes; tests replace them.
  using FileAsker = std::function<std::optional<std::string>()>;
  using MessageShower = std::function<void(const QString& caption, const QString& text)>;
  using Question = std::function<bool(const QString& caption, const QString& text)>;
  void SetFileAsker(FileAsker asker) { ask_file_ = std::move(asker); }
  void SetMessageShower(MessageShower shower) { show_message_ = std::move(shower); }
  void SetQuestion(Question question) { ask_ = std::move(question); }

 private:
  void Build();
  void ConnectControls();
  void LoadFile();
  void DeletePage();
  // Puts the editor's view into the controls.
  void ShowView();
  void FillSizes();
  void MarkCells(const std::vector<ScreenEditor::View::Mark>& marks);
  void ShowTerminal(const TerminalPreview& terminal);

  ScreenEditor editor_;
  FileAsker ask_file_;
  MessageShower show_message_;
  Question ask_;
  bool showing_ = false;
  int sizes_font_ = -1;  // the FontSize the size box was filled for

  QPushButton* load_ = nullptr;
  QLabel* total_ = nullptr;
  QPushButton* delete_ = nullptr;
  QLabel* current_ = nullptr;
  QPlainTextEdit* preview_ = nullptr;
  QLabel* caret_ = nullptr;
  QPlainTextEdit* terminal_ = nullptr;
  std::array<QPushButton*, 4> navigation_{};
  QLabel* reformat_ = nullptr;
  QComboBox* size_ = nullptr;
  std::array<QLabel*, kVisibleLines> numbers_{};
  std::array<QComboBox*, kVisibleLines> fields_{};
  std::array<QLineEdit*, kVisibleLines> xs_{};
  std::array<QLineEdit*, kVisibleLines> ys_{};
  std::array<QLineEdit*, kVisibleLines> texts_{};
  QPushButton* lines_back_ = nullptr;
  QPushButton* lines_forward_ = nullptr;
  QPushButton* reset_ = nullptr;
};

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_PAGE_H_
