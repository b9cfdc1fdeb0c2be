#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class CloseBox : public support::Household {
protected:
    void start() {
        addMembers({u"Ann Larkin"_s, u"Bob"_s});
        exec(u"INSERT INTO AssetLiquidation (Seq, Asset) VALUES (1, 'A')"_s);
        exec(u"INSERT INTO WhoGetsWhat (Item) VALUES ('Clock')"_s);
        startFor(u"Ann Larkin"_s);
    }
    [[nodiscard]] QString dialogName() { return user.dialog()["name"_L1].toString(); }
};

/// Every dialog, and the way to it.
struct Way {
    QString dialog;
    QString node;  ///< clicked first, if any
    std::function<void(support::User&)> open;
    QString told = {};  ///< title of the box that follows its closing, if any
};

TEST_F(CloseBox, LeavesEveryDialogAsIfNothingHadBeen) {
    start();
    const auto click = [](const QString& button) { return [button](support::User& played) { played.click(button); }; };
    const auto tool = [](const QString& key) { return [key](support::User& played) { played.tool(key); }; };
    const auto menu = [](const QString& entry) { return [entry](support::User& played) { played.menu(entry); }; };
    const auto node = [this](const QString& key) { return [this, key](support::User&) { openNode(key); }; };
    const std::vector<Way> ways{
        {u"frmAbout"_s, {}, menu(u"mnuAbout"_s)},
        {u"frmCategoryListHelp"_s, {}, node(u"CategoryListHelp"_s)},
        {u"frmSecurityInfo"_s, {}, node(u"SecurityInfo"_s)},
        {u"frmLogin"_s, {}, node(u"LogIn"_s)},
        {u"frmChangePassword"_s, {}, node(u"ChangeMainPassword"_s)},
        {u"frmChangePINPassword"_s, {}, node(u"ChangePINPassword"_s)},
        {u"frmLoginPIN"_s, {}, node(u"PINsPasswords"_s)},
        {u"frmFind"_s, {}, menu(u"mFind"_s)},
        {u"frmFamilyBook"_s, {}, menu(u"mFamilyBook"_s)},
        {u"frmAttach"_s, {}, tool(u"tbAttach"_s)},
        {u"FileDialog"_s, {}, tool(u"tbSave"_s), u"No Filename"_s},
        {u"FileDialog"_s, {}, tool(u"tbSaveAll"_s), u"No File Name"_s},
        {u"FileDialog"_s, {}, menu(u"mBackup"_s), u"No Database Name"_s},
        {u"frmAssetLiqEdit"_s, u"AssetLiquidation"_s, click(u"cmdEdit"_s)},
        {u"frmWhoGetsWhatEdit"_s, u"WhoGetsWhat"_s, click(u"cmdEdit"_s)},
        {u"frmMedLogEdit"_s, u"MedicalLog"_s, click(u"cmdAdd"_s)},
    };
    const QByteArray before = bytesOf(u"FamilyInfo.mdb"_s);
    for (const Way& way : ways) {
        SCOPED_TRACE(way.dialog.toStdString());
        if (!way.node.isEmpty()) openNode(way.node);
        const QStringList around = forms();
        for (int again = 0; again < 2; ++again) {
            way.open(user);
            ASSERT_EQ(dialogName(), way.dialog);
            user.dismiss();
            EXPECT_EQ(boxTitle(), way.told);
            if (!way.told.isEmpty()) user.dismiss();
            EXPECT_EQ(forms(), around);
            EXPECT_TRUE(treeEnabled());
        }
    }
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), before);
}

TEST_F(CloseBox, OfAnAccountKeepsNoneOfItsSecrets) {
    start();
    openNode(u"PINsPasswords"_s);
    user.click(u"cmdOK"_s);
    user.click(u"cmdAdd"_s);
    user.fill(u"txtAccount"_s, u"Bank"_s);
    user.fill(u"txtPINPass"_s, u"4711"_s);
    user.dismiss();
    EXPECT_EQ(activeWindow(), u"frmPinsAndPasswords"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM PIN_Password"_s), u"0"_s);
}

TEST_F(CloseBox, TheDescriptionsInputBoxIsLeftWithoutADescription) {
    start();
    write(u"deed.pdf"_s, "deed");
    user.tool(u"tbAttach"_s);
    user.click(u"cmdAdd"_s);
    user.dismiss();
    EXPECT_EQ(boxTitle(), u"Process Canceled"_s);
    user.dismiss();
    user.click(u"cmdAdd"_s);
    user.choose(path(u"deed.pdf"_s));
    ASSERT_EQ(boxTitle(), u"Attachment Description"_s);
    user.dismiss();
    EXPECT_EQ(cell(u"SELECT ifnull(fileDesc, '') || OldFileName FROM Attachments"_s), u"deed.pdf"_s);
    user.select(u"lvAttach"_s, 0);
    user.click(u"cmdDelete"_s);
    EXPECT_THROW(user.dismiss(), std::exception) << "a question has no close box";
    user.answer(u"No"_s);
    user.click(u"cmdCopy"_s);
    user.dismiss();
    EXPECT_EQ(dialogName(), u"frmAttach"_s);
}

}  // namespace
