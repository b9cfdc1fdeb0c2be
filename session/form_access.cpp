#include "session/form_access.h"

#include <QWidget>

#include "platform/forms/check_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/text_control.h"

using namespace Qt::StringLiterals;

namespace session {

void setFormAccess(platform::Form& form, bool canEdit) {
    const auto widgets = form.window().findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        const QString name = widget->objectName();
        if (auto* text = dynamic_cast<platform::TextControl*>(widget)) {
            if (name.startsWith(u"txtFields("_s)) text->setLocked(!canEdit);
        } else if (name.startsWith(u"chkFields("_s)) {
            widget->setEnabled(canEdit);
        }
    }
}

void setAllFormsAccess(platform::Desktop& desktop, bool canEdit) {
    static const QStringList untouched{u"MDIHost"_s, u"frmLogin"_s, u"frmChangePassword"_s, u"frmLoginPIN"_s};
    for (int i = desktop.count() - 1; i >= 0; --i) {
        if (!untouched.contains(desktop.at(i).name())) setFormAccess(desktop.at(i), canEdit);
    }
}

}  // namespace session
