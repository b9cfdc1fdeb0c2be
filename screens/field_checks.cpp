#include "screens/field_checks.h"

#include "data/table_definition.h"
#include "platform/base/conversions.h"
#include "platform/base/date_text.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"

using namespace Qt::StringLiterals;

namespace screens {

void showInvalidDate(platform::Desktop& desktop, const QString& label) {
    const QString name = label.chopped(1);
    desktop.notice(
        u"The %1 field has an error in it.  The date needs to have a month, day, and year.  The month can be spelled "
        "out or abbreviated or entered as a number.\r\n\r\n"
        "Before you Cancel or Save, you must either enter the date correctly or leave the %1 field blank."_s.arg(name),
        u"Invalid "_s + name);
}

void showInvalidNumber(platform::Desktop& desktop, const QString& label) {
    const QString name = label.chopped(1);
    desktop.notice(
        u"You must enter a number in the %1 field or you can leave it blank.  However, it cannot accept letters or "
        "special characters.\r\n\r\n"
        "Before you Cancel or Save, you must either enter the number correctly or leave the %1 field blank."_s.arg(
            name),
        u"Invalid "_s + name);
}

bool passes(platform::Desktop& desktop, platform::TextControl& box, data::FieldKind kind, const QString& label) {
    const QString text = box.text();
    if (text.isEmpty()) return true;
    if (kind == data::FieldKind::Date) {
        if (platform::isDate(text)) return true;
        showInvalidDate(desktop, label);
    } else {
        if (platform::isNumeric(text)) return true;
        showInvalidNumber(desktop, label);
    }
    box.selectAll();
    return false;
}

}  // namespace screens
