#include "screens/education_screen.h"

#include <QTimer>

#include "platform/forms/text_control.h"

namespace screens {

void EducationScreen::Form_Activate() {
    boxes().text(1).widget().setFocus(Qt::TabFocusReason);
}

}  // namespace screens
