#include "tests/support/user_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace support {

namespace {

/// The full name that the dialog makes of a typed one: in its folder, with its suffix if it has none.
QString fullName(const QFileDialog& dialog, const QString& typed) {
    if (typed.isEmpty()) return {};
    QString name = QDir::cleanPath(dialog.directory().absoluteFilePath(typed));
    const QFileInfo file(name);
    if (!dialog.defaultSuffix().isEmpty() && file.suffix().isEmpty() && !file.isDir()) {
        name += u'.' + dialog.defaultSuffix();
    }
    return name;
}

}  // namespace

void UserDialogs::choose(QFileDialog& dialog, const QString& path) {
    chosen_ = fullName(dialog, path);
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
}

QString UserDialogs::runFileDialog(QFileDialog& dialog) {
    chosen_.reset();
    if (dialog.exec() != QDialog::Accepted) return {};
    return chosen_.value_or(dialog.selectedFiles().value(0));
}

}  // namespace support
