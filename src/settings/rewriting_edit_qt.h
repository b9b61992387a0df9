#ifndef VELTRIX_SETTINGS_REWRITING_EDIT_QT_H_
#define VELTRIX_SETTINGS_REWRITING_EDIT_QT_H_

#include <QLineEdit>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

// An edit rule of the core: takes the edit's whole text after a change, stores what it means and
// answers with the corrected text when the edit must show something else.
using RewritingRule = std::function<std::optional<std::string>(const std::string&)>;

// Binds `edit` to `rule`: every change of its text (typed, pasted or deleted) goes through the
// rule. A corrected text is shown selected, so the next key typed replaces it: clearing the
// edit and typing 600 stores 600, never the correction followed by 600. `active` says whether
// changes are the user's (false while the page fills its controls).
QMetaObject::Connection BindRewritingEdit(QLineEdit* edit, RewritingRule rule,
                                          std::function<bool()> active);

// The record's single-byte texts: one character per byte.
QString FromRecordText(std::string_view text);
std::string ToRecordText(const QString& text);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_REWRITING_EDIT_QT_H_
