#pragma once

#include <QLabel>

namespace platform {

/// A line that says where the user is; a screen reader is told of each change.
class StatusLine : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    void setText(const QString& text);
};

}  // namespace platform
