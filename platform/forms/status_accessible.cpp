#include "platform/forms/status_accessible.h"

#include "platform/forms/status_line.h"

namespace platform {

namespace {

/// The note within a status line: the line's text once more, under the role that is spoken when it comes up.
class Note : public QAccessibleInterface {
public:
    explicit Note(StatusAccessible& status) : status_(status) {}

    [[nodiscard]] bool isValid() const override { return status_.isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override { return status_.window(); }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override { return &status_; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text what) const override { return status_.text(what); }
    void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override { return status_.rect(); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return status_.state(); }

private:
    StatusAccessible& status_;
};

}  // namespace

StatusAccessible::StatusAccessible(StatusLine& line) : QAccessibleWidget(&line, QAccessible::StatusBar), line_(line) {}

StatusAccessible::~StatusAccessible() {
    if (note_ != 0) QAccessible::deleteAccessibleInterface(note_);
}

QAccessibleInterface* StatusAccessible::child(int index) const {
    if (index != 0) return nullptr;
    if (note_ == 0) note_ = QAccessible::registerAccessibleInterface(new Note(const_cast<StatusAccessible&>(*this)));
    return QAccessible::accessibleInterface(note_);
}

int StatusAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return note_ != 0 && child == QAccessible::accessibleInterface(note_) ? 0 : -1;
}

QString StatusAccessible::text(QAccessible::Text what) const {
    return what == QAccessible::Name ? line_.text() : QAccessibleWidget::text(what);
}

}  // namespace platform
