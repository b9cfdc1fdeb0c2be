#include "platform/forms/check_box.h"

#include <QStyleOptionButton>

#include "platform/forms/colours.h"

namespace platform {

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {
    connect(this, &QCheckBox::stateChanged, this, [this] {
        if (checkState() != Qt::PartiallyChecked) setTristate(false);
        if (handler_) handler_();
    });
}

int CheckBox::value() const {
    switch (checkState()) {
        case Qt::Checked:
            return 1;
        case Qt::PartiallyChecked:
            return 2;
        default:
            return 0;
    }
}

void CheckBox::setValue(int value) {
    setTristate(value == 2);
    setCheckState(value == 2 ? Qt::PartiallyChecked : value == 0 ? Qt::Unchecked : Qt::Checked);
}

void CheckBox::initStyleOption(QStyleOptionButton* option) const {
    QCheckBox::initStyleOption(option);
    if (isEnabled()) return;
    // What can't be changed must still be read.
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        const QColor usual = option->palette.color(QPalette::Active, role);
        const QColor window = option->palette.color(QPalette::Active, QPalette::Window);
        option->palette.setColor(QPalette::Disabled, role, blended(usual, window, 0.3));
    }
}

void CheckBox::showValue(const QVariant& value, ColumnKind /*kind*/, const QString& /*format*/) {
    setValue(value.isValid() ? (value.toBool() ? 1 : 0) : 2);
}

QVariant CheckBox::content() const {
    return value() == 2 ? QVariant() : QVariant(value() == 1);
}

}  // namespace platform
