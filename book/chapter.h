#pragma once

#include <QString>

namespace book {

/// A heading of the book: a branch, or a category with the window whose records stand under it.
struct Chapter {
    int level = 0;  ///< it belongs to the last one before it with a lower level
    QString title{};
    QString window{};  ///< empty for a branch
};

/// What stands for a window under the chapter with the names of all attached files.
[[nodiscard]] inline QString attachedFiles() {
    return QStringLiteral("frmAttach");
}

}  // namespace book
