#include "platform/forms/check_box.h"

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

void CheckBox::showValue(const QVariant& value, ColumnKind /*kind*/, const QString& /*format*/) {
    setValue(value.isValid() ? (value.toBool() ? 1 : 0) : 2);
}

QVariant CheckBox::content() const {
    return value() == 2 ? QVariant() : QVariant(value() == 1);
}

}  // namespace platform
