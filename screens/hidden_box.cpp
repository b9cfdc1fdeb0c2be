#include "screens/hidden_box.h"

#include "platform/base/conversions.h"
#include "platform/forms/text_box.h"

namespace screens {

HiddenBox::HiddenBox(QWidget& form, const QString& name, const QString& column)
    : box_(new platform::TextBox(&form)), binding_(*box_, column, QString()) {
    box_->setName(name);
    box_->hide();
    box_->setFocusPolicy(Qt::NoFocus);
    // It is never seen.
    box_->holdDisplay();
}

QString HiddenBox::text() const {
    return box_->text();
}

void HiddenBox::setText(const QString& text) {
    box_->setText(text);
}

int HiddenBox::number() const {
    return platform::toLong(text());
}

bool HiddenBox::isNumeric() const {
    return platform::isNumeric(text());
}

}  // namespace screens
