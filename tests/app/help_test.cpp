#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTreeWidget>

#include "app/category_nodes.h"
#include "app/help_viewer.h"
#include "tests/support/gui_thread.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

const QString helpSource = QStringLiteral(HELP_SOURCE);

class Help : public support::Household {
protected:
    void start() {
        addMembers({u"Ann Larkin"_s});
        user.start();
    }
    QString textOf(const QString& control) { return user.text(control); }
};

TEST_F(Help, TheDialogsTellWhatTheyAreFor) {
    write(u"SplashDef.txt"_s,
          "CompanyName=Larkmoor\r\nProductName=Kinbook\r\nVersion=Version 7\r\nSlogan=One & all\r\n"
          "Copyright=(c) us\r\nSplash=1\r\n");
    start();
    user.menu(u"mnuAbout"_s);
    EXPECT_EQ(textOf(u"lblProductName"_s) + textOf(u"lblVersion"_s) + textOf(u"lblSlogan"_s) + textOf(u"Label1"_s),
              u"KinbookVersion 7One & allThe Kinbook Keeper"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});

    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    openNode(u"CategoryListHelp"_s);
    EXPECT_TRUE(textOf(u"Text1"_s).startsWith(u"1.  Category List Tips.\r\nIf a '+' or '-' is shown beside"_s));
    EXPECT_TRUE(textOf(u"Text1"_s).endsWith(u"set the order of the family appearances.\r\n"_s));
    EXPECT_TRUE(isLocked(u"Text1"_s));
    user.key(u"Escape"_s);
    openNode(u"SecurityInfo"_s);
    EXPECT_TRUE(textOf(u"lblLabels"_s).startsWith(u"If you do not care about setting up password protection"_s));
    EXPECT_TRUE(textOf(u"Label7"_s).endsWith(u"in the Security category and do steps 2-4 above."_s));
    user.click(u"cmdOK"_s);
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"frmKinbook"_s}));
}

TEST_F(Help, ItsOwnerCountsAsAFormButNotAsADataWindow) {
    start();
    EXPECT_FALSE(user.session()["gbHelpOpened"_L1].toBool());
    user.menu(u"mnuHelp"_s);
    EXPECT_TRUE(user.session()["gbHelpOpened"_L1].toBool());
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"Form1"_s}));
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"frmKinbook"_s}));
    // Two forms again, but one of them has something to lose.
    user.fill(u"Legal Name:"_s, u"Ann"_s);
    user.close();
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"No"_s);
    cancelEdit();
    user.menu(u"mnuHelp"_s);
    user.close();
    EXPECT_FALSE(running());
}

TEST(HelpViewer, ShowsItsContentsSearchesAndGoesBack) {
    support::GuiThread gui([] { return true; });
    gui.act([] {
        app::HelpViewer viewer(helpSource);
        viewer.open();
        auto* contents = viewer.findChild<QTreeWidget*>();
        auto* page = viewer.findChild<QTextBrowser*>();
        auto* search = viewer.findChild<QLineEdit*>();
        EXPECT_EQ(contents->topLevelItem(0)->text(0), u"First steps"_s);
        EXPECT_FALSE(page->isBackwardAvailable());
        const auto chapters = contents->findItems(u"Passwords"_s, Qt::MatchExactly);
        ASSERT_EQ(chapters.size(), 1);
        contents->setCurrentItem(chapters.first()->child(2));
        EXPECT_EQ(page->source().fragment(), u"what-they-protect"_s);
        page->backward();
        EXPECT_EQ(page->source().fragment(), u""_s);
        search->setText(u"nobody who has the file"_s);
        Q_EMIT search->returnPressed();
        EXPECT_EQ(page->textCursor().selectedText(), u"nobody who has the file"_s);
        search->setText(u"no such words"_s);
        Q_EMIT search->returnPressed();
        EXPECT_EQ(page->textCursor().selectedText(), u"nobody who has the file"_s);

        app::HelpViewer missing(u"/nowhere/Helper.hlp"_s);
        missing.open();
        EXPECT_TRUE(missing.findChild<QTextBrowser*>()->toPlainText().contains(u"/nowhere/Helper.hlp"_s));
    });
}

TEST(HelpText, EveryCategoryHasItsSentenceAndEveryHeadingItsAnchor) {
    QFile file(helpSource);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    for (const app::CategoryNode& node : app::categoryNodes()) {
        const QString name(node.text);
        const bool isBranch = text.contains(u"</a>"_s + name + u"</h2>"_s) || node.parent.isEmpty();
        EXPECT_TRUE(isBranch || text.contains(u"<b>"_s + name + u"</b>: "_s)) << name.toStdString();
    }
    EXPECT_EQ(text.count(u"<h1>"_s) + text.count(u"<h2>"_s), text.count(u"><a name=\""_s));
}

}  // namespace
