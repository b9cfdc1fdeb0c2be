#include "app/host_panel.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <array>

#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/tree_view.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

constexpr int margin = 8;
constexpr qreal guidanceScale = 1.15;
constexpr qreal headingScale = 1.35;

struct Guidance {
    QLatin1StringView name;
    QLatin1StringView text;
};

constexpr std::array guidance{
    Guidance{"Label3"_L1, "A recommended order for entering your family members is below:"_L1},
    Guidance{"Label9"_L1, "    1) Head of Household"_L1},
    Guidance{"Label14"_L1, "    2) Spouse (if available)"_L1},
    Guidance{"Label13"_L1, "    3) Oldest Child"_L1},
    Guidance{"Label10"_L1, "                 . . ."_L1},
    Guidance{"Label11"_L1, "    5) Youngest Child"_L1},
    Guidance{"Label12"_L1, "This order can be changed using the File | Family Sequence... menu item."_L1},
};

QLabel* makeLabel(QWidget* parent, const QString& name, const QString& text) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void enlarge(QLabel& label, qreal scale, bool bold) {
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    label.setFont(font);
}

/// A disabled control hands the focus on, which would bring whatever window comes next in the tab order to the front.
void enable(QWidget& control, bool enabled) {
    if (!enabled) control.clearFocus();
    control.setEnabled(enabled);
}

}  // namespace

HostPanel::HostPanel(QWidget* parent)
    : QWidget(parent),
      frame1_(new QGroupBox(u"Select Whole Family or Individual"_s, this)),
      cbPerson_(new platform::ComboBox(frame1_)),
      cmdAddNew_(new platform::CommandButton(this)),
      tvTree_(new platform::TreeView(this)),
      guidance_(makeGuidance()) {
    setObjectName(u"Picture1"_s);
    frame1_->setObjectName(u"Frame1"_s);
    cbPerson_->setName(u"cbPerson"_s);
    cbPerson_->setSpokenName(frame1_->title());
    cmdAddNew_->setName(u"cmdAddNew"_s);
    cmdAddNew_->setText(usualAddCaption());
    tvTree_->setName(u"tvTree"_s);
    tvTree_->setSpokenName(u"Categories"_s);

    auto* selector = new QVBoxLayout(frame1_);
    selector->addWidget(cbPerson_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->addWidget(frame1_);
    column->addWidget(cmdAddNew_);
    column->addWidget(guidance_);
    column->addWidget(tvTree_, 1);
    column->addStretch(0);
    guidance_->hide();
}

QSize HostPanel::sizeHint() const {
    return {tvTree_->widestNode() + 2 * margin, QWidget::sizeHint().height()};
}

QString HostPanel::usualAddCaption() {
    return u"E&nter Another Family Member"_s;
}

QWidget* HostPanel::makeGuidance() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, 8, 0, 0);
    for (const Guidance& line : guidance) {
        QLabel* label = makeLabel(page, line.name, line.text);
        const bool isHeading = &line == &guidance.front();
        enlarge(*label, isHeading ? headingScale : guidanceScale, isHeading);
        column->addWidget(label);
    }
    column->addSpacing(12);
    label1_ = makeLabel(
        page, u"Label1"_s,
        u"Important Information for You:\r\n\r\n"
        "Tab Key - Use the Tab Key, not the Enter Key, to move from field to field on the screen.  When you finish "
        "typing in a field, just click the tab key to move to the next field.  "
        "Space Bar - Used to check and uncheck the check boxes.  A mouse click will also check and uncheck a check "
        "box.  "
        "These tips are in the Help file as Keyboard/Mouse Tips."_s);
    enlarge(*label1_, guidanceScale, false);
    column->addWidget(label1_);
    column->addStretch(1);
    return page;
}

void HostPanel::showFirstRun() {
    frame1_->setEnabled(false);
    frame1_->hide();
    tvTree_->hide();
    guidance_->show();
    label1_->show();
    cmdAddNew_->setMinimumHeight(cmdAddNew_->fontMetrics().lineSpacing() * 14 / 5);
    cmdAddNew_->setText(u"Head of Household\r\nClick Here To Enter"_s);
}

void HostPanel::endFirstRun() {
    tvTree_->show();
    frame1_->show();
    tvTree_->setEnabled(true);
    frame1_->setEnabled(true);
    label1_->hide();
    guidance_->hide();
    cmdAddNew_->setText(usualAddCaption());
    cmdAddNew_->setMinimumHeight(0);
}

void HostPanel::enableTree(bool enabled) {
    enable(*tvTree_, enabled);
}

void HostPanel::enableAddMember(bool enabled) {
    enable(*cmdAddNew_, enabled);
}

void HostPanel::mousePressEvent(QMouseEvent* event) {
    QWidget::mousePressEvent(event);
    if (clicked_) clicked_();
}

}  // namespace app
