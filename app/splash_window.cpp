#include "app/splash_window.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "app/brand.h"
#include "platform/base/conversions.h"
#include "platform/base/files.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

constexpr int logoSize = 96;
constexpr int fullLogoSize = 256;
/// 200 twips at 96 dpi.
constexpr int lineGap = 13;

}  // namespace

SplashWindow::SplashWindow(platform::Desktop& desktop, const session::Session& session)
    : FormWindow(desktop, formName(), Kind::Window) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFocusPolicy(Qt::StrongFocus);
    setCaption(session.definition.gsProductName);
    setAttribute(Qt::WA_StyledBackground);
    imgFullLogo = makeLabel(u"imgFullLogo"_s);
    imgLarkmoorLogo = makeLabel(u"imgLarkmoorLogo"_s);
    imgLogo = makeLabel(u"imgLogo"_s);
    lblCompanyName = makeLabel(u"lblCompanyName"_s);
    lblSlogan = makeLabel(u"lblSlogan"_s);
    lblPhone = makeLabel(u"lblPhone"_s);
    lblProductName = makeLabel(u"lblProductName"_s);
    lblTM = makeLabel(u"lblTM"_s);
    lblVersion = makeLabel(u"lblVersion"_s);
    lblCopyright = makeLabel(u"lblCopyright"_s);
    lblCompany = makeLabel(u"lblCompany"_s);
    loadPictures(session);
    setCaptions(session);
    layOut();
}

QString SplashWindow::formName() {
    return u"frmSplash"_s;
}

QLabel* SplashWindow::makeLabel(const QString& name) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void SplashWindow::loadPictures(const session::Session& session) {
    loadPicture(*imgLarkmoorLogo, session.path(u"TheLarkmoorIcon.ico"_s), logoSize);
    imgLogo->hide();
    imgFullLogo->hide();
    const QString small = session.path(u"TheIcon.ico"_s);
    if (platform::files::fileExists(small)) {
        loadPicture(*imgLogo, small, logoSize);
    } else {
        loadPicture(*imgFullLogo, session.path(u"TheFullIcon.ico"_s), fullLogoSize);
    }
}

void SplashWindow::setCaptions(const session::Session& session) {
    const session::Definition& words = session.definition;
    lblProductName->setText(words.gsProductName);
    lblVersion->setText(words.gsVersion);
    lblCopyright->setText(words.gsCopyright);
    lblCompany->setText(words.gsCompany);
    setLabelFont(*lblProductName, 30, true);
    setLabelFont(*lblVersion, 12, true);

    const int nameSize = qBound(1, static_cast<int>(platform::val(words.gsNameFontSize)), 96);
    setLabelFont(*lblCompanyName, nameSize, true);
    lblPhone->setText(words.gsPhone);
    // A full logo carries the name already.
    if (!imgFullLogo->isHidden()) return;
    lblCompanyName->setText(words.gsCompanyName);
    lblSlogan->setText(words.gsSlogan);
}

void SplashWindow::layOut() {
    auto* product = productLine(*lblProductName, *lblTM);

    auto* words = new QVBoxLayout;
    words->setSpacing(2);
    words->addWidget(imgFullLogo);
    words->addWidget(lblCompanyName);
    words->addSpacing(lineGap);
    if (lblSlogan->text().isEmpty()) {
        lblSlogan->hide();
    } else {
        words->addWidget(lblSlogan);
        words->addSpacing(lineGap);
    }
    words->addWidget(lblPhone);
    words->addStretch(1);
    words->addLayout(product);
    words->addWidget(lblVersion);
    words->addSpacing(lineGap);
    words->addWidget(lblCopyright);
    words->addWidget(lblCompany);

    auto* logos = new QVBoxLayout;
    logos->addWidget(imgLarkmoorLogo);
    logos->addWidget(imgLogo);
    logos->addStretch(1);

    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(28, 28, 28, 28);
    all->setSpacing(24);
    all->addLayout(logos);
    all->addLayout(words, 1);
    setMinimumSize(520, 320);
    adjustSize();
    move(QGuiApplication::primaryScreen()->geometry().center() - rect().center());
}

void SplashWindow::paintEvent(QPaintEvent* event) {
    FormWindow::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void SplashWindow::Form_KeyPress(int /*keyAscii*/) {
    unload();
}

void SplashWindow::mousePressEvent(QMouseEvent* event) {
    FormWindow::mousePressEvent(event);
    unload();
}

}  // namespace app
