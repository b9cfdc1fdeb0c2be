#include "app/about_dialog.h"

#include <QHBoxLayout>
#include <QLabel>

#include "app/brand.h"
#include "platform/forms/dialog_buttons.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

AboutDialog::AboutDialog(platform::Desktop& desktop, const session::Session& session)
    : FormWindow(desktop, u"frmAbout"_s, Kind::Dialog) {
    constexpr int logoSize = 96;
    setCaption(u"About "_s + session.definition.gsProductName);
    auto* imgLogo = makeLabel(u"imgLogo"_s, {});
    loadPicture(*imgLogo, session.path(u"TheIcon.ico"_s), logoSize);
    const session::Definition& words = session.definition;
    auto* company = makeLabel(u"lblCompanyName"_s, words.gsCompanyName);
    setLabelFont(*company, 14, true);
    auto* product = makeLabel(u"lblProductName"_s, words.gsProductName);
    setLabelFont(*product, 26, true);

    auto* texts = new QVBoxLayout;
    texts->addWidget(company);
    texts->addLayout(productLine(*product, *makeLabel(u"lblTM"_s, {})));
    texts->addWidget(makeLabel(u"Label1"_s, u"The Kinbook Keeper"_s));
    texts->addSpacing(12);
    texts->addWidget(makeLabel(u"lblVersion"_s, words.gsVersion));
    texts->addWidget(makeLabel(u"lblSlogan"_s, words.gsSlogan));
    texts->addWidget(makeLabel(u"lblCopyright"_s, words.gsCopyright));

    auto* top = new QHBoxLayout;
    top->setSpacing(24);
    top->addWidget(imgLogo, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 12);
    column->setSpacing(16);
    column->addLayout(top);
    column->addLayout(platform::closingButton(*this, handler([this] { unload(); })));
}

QLabel* AboutDialog::makeLabel(const QString& name, const QString& text) {
    auto* label = new QLabel(text, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace app
