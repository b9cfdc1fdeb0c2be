#pragma once

#include <QJsonObject>

class QAbstractItemView;
class QAction;
class QWidget;

namespace platform {
class Desktop;
class Form;
class TreeView;
}  // namespace platform
namespace session {
struct Session;
}

namespace support {

// What a user sees, as JSON. The functions run in the application's thread.

/// The topmost modal window: a box, a file dialog, an input box or a form; null if none is open.
[[nodiscard]] QJsonValue describeDialog();
/// The windows: dialog, active, forms, focus and pointer.
[[nodiscard]] QJsonObject describeDesktop(const platform::Desktop& desktop);
[[nodiscard]] QJsonObject describeSession(const session::Session& session);
/// A form with all its controls.
[[nodiscard]] QJsonObject describeForm(platform::Form& form);
[[nodiscard]] QJsonObject describeControl(QWidget& control);
[[nodiscard]] QJsonObject describeAction(const QAction& action);
[[nodiscard]] QJsonObject describeTree(const platform::TreeView& tree);
/// Columns with their widths in pixels, all rows as shown, and the current row.
[[nodiscard]] QJsonObject describeView(const QAbstractItemView& view);

/// A caption without the marks of its accelerators: "&Yes" is "Yes", "A && B" is "A & B".
[[nodiscard]] QString plainCaption(const QString& caption);

}  // namespace support
