#pragma once

#include "platform/forms/form_window.h"

class QLabel;

namespace session {
struct Session;
}

namespace app {

/// Who made the program, in the words of the definition file.
class AboutDialog : public platform::FormWindow {
    Q_OBJECT

public:
    AboutDialog(platform::Desktop& desktop, const session::Session& session);

private:
    [[nodiscard]] QLabel* makeLabel(const QString& name, const QString& text);
};

}  // namespace app
