#include "app/information_dialogs.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/forms/dialog_buttons.h"
#include "platform/forms/memo_box.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

const QString categoryTips =
    u"1.  Category List Tips.\r\n"
    "If a '+' or '-' is shown beside the desired category line, click on the '+' or '-' instead of on the "
    "word.\r\n"
    "Clicking the '+' will expand the category list.\r\n"
    "Clicking the '-' will collapse the category list.\r\n"
    "If no '+' or '-' is shown in front of the category, click on the word.  This will cause a page to be "
    "displayed for you to enter your information into.\r\n"
    "2.  Keyboard/Mouse Tips.\r\n"
    "Tab Key - Use the Tab key, not the Enter key to move from field to field on the screen.  When you finish "
    "typing in a field, just click the Tab key to move to the next field.\r\n"
    "Space Bar - Used to check and uncheck the checkboxes.  A mouse click will also check or uncheck a "
    "checkbox.\r\n"
    "3.  Family Member Sequence Tip.\r\n"
    "Anytime you open Larkmoor Kinbook you can change the order that the screens appear when Whole Family is "
    "selected.  Just go to the menu bar as soon as you open Larkmoor Kinbook and before you select a family "
    "member to display (only  'File    Help' options will be available).  Click on 'File', and then click on "
    "'Family Sequence...'.  You can then modify the sequence of screen displays for your family so that the "
    "Head of the House comes first or the kids come first or however you want to set the order of the family "
    "appearances.\r\n"_s;

struct Paragraph {
    QString name;
    QString text;
};

const Paragraph securitySteps[] = {
    {u"lblLabels"_s,
     u"If you do not care about setting up password protection for your Kinbook, just ignore this security "
     "information.  Do not do anything with logins and passwords.  Enjoy your Kinbook software and it will "
     "run fine without password protection."_s},
    {u"Label1"_s, u"If you do want to set up password protection for your Kinbook, just do the following:"_s},
    {u"Label2"_s, u"1.  Select 'Change Main Password' in the Security category."_s},
    {u"Label3"_s,
     u"2.  Follow the directions on the screen with this change:  Leave the Old Password box empty.  Only type "
     "in your New Password and confirm it by retyping it in the Confirm Password box."_s},
    {u"Label4"_s,
     u"3.  Before you go any further, write that password down and put it someplace safe.  If you ever forget "
     "your password, you will not be able to enter or change any more Kinbook."_s},
    {u"Label5"_s, u"4.  Click OK on the Change Password screen and you are fully password protected."_s},
    {u"Label7"_s,
     u"5.  To set up password protection for your PINs And Passwords Screen, select 'Change PIN/Password "
     "Screen Password' in the Security category and do steps 2-4 above."_s},
    {u"Label6"_s,
     u"Note:  If you ever want to turn off password protection, simply change the password to a blank by "
     "entering your old password in the Change Password screen, leave the New Password and Confirm Password "
     "boxes empty, and click OK.  You will no longer be password protected."_s},
};

}  // namespace

CategoryListHelp::CategoryListHelp(platform::Desktop& desktop)
    : FormWindow(desktop, u"frmCategoryListHelp"_s, Kind::Dialog) {
    setCaption(u"Category List Help"_s);
    auto* text = new platform::MemoBox(this);
    text->setName(u"Text1"_s);
    text->setSpokenName(caption());
    text->setLocked(true);
    text->setText(categoryTips);
    auto* column = new QVBoxLayout(this);
    column->addWidget(text, 1);
    column->addLayout(platform::closingButton(*this, handler([this] { unload(); })));
    resize(620, 420);
}

SecurityInfo::SecurityInfo(platform::Desktop& desktop) : FormWindow(desktop, u"frmSecurityInfo"_s, Kind::Dialog) {
    setCaption(u"Security Information"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 12);
    column->setSpacing(10);
    for (const Paragraph& step : securitySteps) {
        auto* label = new QLabel(step.text, this);
        label->setObjectName(step.name);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addStretch(1);
    column->addLayout(platform::closingButton(*this, handler([this] { unload(); })));
    // Labels that wrap have no width of their own to go by.
    setMinimumWidth(560);
    setMinimumHeight(layout()->heightForWidth(560));
}

}  // namespace app
