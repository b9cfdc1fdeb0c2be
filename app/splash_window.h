#pragma once

#include "platform/forms/form_window.h"

class QLabel;
class QVBoxLayout;

namespace session {
struct Session;
}

namespace app {

/// The window with the product's name that stands while the program starts. Any key and any click take it away.
class SplashWindow : public platform::FormWindow {
    Q_OBJECT

public:
    SplashWindow(platform::Desktop& desktop, const session::Session& session);

    [[nodiscard]] static QString formName();
    [[nodiscard]] bool keyPreview() const override { return true; }
    void Form_KeyPress(int keyAscii) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void loadPictures(const session::Session& session);
    void setCaptions(const session::Session& session);
    void layOut();
    QLabel* makeLabel(const QString& name);

    QLabel *imgFullLogo, *imgLarkmoorLogo, *imgLogo;
    QLabel *lblCompanyName, *lblSlogan, *lblPhone;
    QLabel *lblProductName, *lblTM, *lblVersion, *lblCopyright, *lblCompany;
};

}  // namespace app
