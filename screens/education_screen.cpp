#include "screens/education_screen.h"

#include <QTimer>

#include "platform/forms/text_control.h"

namespace screens {

void EducationScreen::Form_Activate() {
    // A window that comes up gives the focus to its first control; this goes behind it.
    QTimer::singleShot(0, this, [this] { boxes().text(1).widget().setFocus(Qt::TabFocusReason); });
}

}  // namespace screens
