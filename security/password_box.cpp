#include "security/password_box.h"

#include <QFormLayout>
#include <QLabel>

#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;

namespace security {

platform::TextBox& addPasswordBox(QFormLayout& rows, const QString& name, const QString& label) {
    constexpr int width = 260;
    auto* box = new platform::TextBox(rows.parentWidget());
    box->setName(name);
    box->setEchoMode(QLineEdit::Password);
    box->setStyleSheet(u"lineedit-password-character: %1"_s.arg(int{u'*'}));
    box->setMinimumWidth(width);
    auto* text = new QLabel(label, rows.parentWidget());
    text->setBuddy(box);
    rows.addRow(text, box);
    return *box;
}

void pointAt(platform::TextBox& box) {
    box.setFocus();
    box.selectAll();
}

}  // namespace security
