#include "settings/rewriting_edit_qt.h"

#include <QSignalBlocker>
#include <utility>

namespace veltrix {

QMetaObject::Connection BindRewritingEdit(QLineEdit* edit, RewritingRule rule,
                                          std::function<bool()> active) {
  return QObject::connect(
      edit, &QLineEdit::textChanged, edit,
      [edit, rule = std::move(rule), active = std::move(active)](const QString& text) {
        if (!active()) return;
        const std::optional<std::string> corrected = rule(ToRecordText(text));
        if (!corrected || FromRecordText(*corrected) == text) return;
        // The correction is the rule's own: it is stored already.
        const QSignalBlocker quiet(edit);
        edit->setText(FromRecordText(*corrected));
        edit->selectAll();
      });
}

QString FromRecordText(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

std::string ToRecordText(const QString& text) { return text.toLatin1().toStdString(); }

}  // namespace veltrix
