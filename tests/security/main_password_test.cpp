#include <gtest/gtest.h>

#include "platform/base/files.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

// Worked out by tests/data/cipher_bytes.py.
const QByteArray storedOld = "\xc1\xe6\xf2";
const QByteArray storedTeaTime = "\xfa\xef\xf7\xb3\xe7\xe5\xe6\xf5";

class MainPassword : public support::Household {
protected:
    /// `enciphered`: the main password as the definition file has it.
    void start(const QByteArray& enciphered = {}) {
        write(u"SplashDef.txt"_s, "CompanyName=A=B\r\nPhone= 1 \r\nSplash=1\r\nValue=" + enciphered + "\r\n");
        addMembers({u"Ann Larkin"_s});
        exec(u"INSERT INTO HomeOwned (PersonID) VALUES (1)"_s);
        startFor(u"Ann Larkin"_s);
    }
    void changeTo(const QString& password, const QString& old, const QString& confirmation) {
        openNode(u"ChangeMainPassword"_s);
        user.fill(u"txtOld"_s, old);
        user.fill(u"txtNew"_s, password);
        user.fill(u"txtConfirm"_s, confirmation);
        user.click(u"cmdOK"_s);
    }
    bool canEdit() { return user.session()["gbCanEdit"_L1].toBool(); }
    QByteArray definition() { return bytesOf(u"SplashDef.txt"_s); }
};

TEST_F(MainPassword, LoggingInUnlocksEveryOpenScreenAtOnce) {
    start(storedTeaTime);
    EXPECT_FALSE(canEdit());
    openNode(u"CDs"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    openNode(u"Home"_s);
    EXPECT_TRUE(isLocked(u"txtFields(2)"_s));
    openNode(u"LogIn"_s);
    for (const QString& wrong : {u""_s, u"tea time"_s, u"Tea time "_s}) {
        user.fill(u"txtPassword"_s, wrong);
        user.click(u"cmdOK"_s);
        EXPECT_EQ(told(), u"Login: Invalid Password, try again!"_s);
        EXPECT_EQ(selected(u"txtPassword"_s), wrong.size());
    }
    user.key(u"Escape"_s);
    EXPECT_FALSE(canEdit());
    user.node(u"LogIn"_s);
    EXPECT_EQ(user.text(u"txtPassword"_s), u"Tea time "_s);
    user.type(u"Tea time"_s);
    user.key(u"Return"_s);
    EXPECT_TRUE(canEdit());
    EXPECT_FALSE(isLocked(u"txtFields(2)"_s));
    EXPECT_TRUE(forms().contains(u"frmLogin"_s));
    user.click(u"cmdEdit"_s);
    EXPECT_TRUE(boxTitle().isEmpty());
}

TEST_F(MainPassword, AChangeRewritesTheDefinitionFileAndLogsIn) {
    struct Case {
        QString password;
        QByteArray stored;
    };
    const Case cases[] = {
        {u"it's = \"11\""_s, "\xc7\xfe\xb1\xe0\xb3\xb1\xab\xb2\xa0\xab\x8c"},
        {u""_s, ""},
    };
    start(storedOld);
    QString old = u"old"_s;
    for (const Case& sample : cases) {
        SCOPED_TRACE(sample.password.toStdString());
        EXPECT_EQ(canEdit(), old.isEmpty());
        changeTo(sample.password, old, sample.password);
        EXPECT_TRUE(boxTitle().isEmpty());
        EXPECT_TRUE(canEdit());
        EXPECT_TRUE(definition().startsWith("CompanyName=A=B\r\nNameFontSize=\r\nProductName=\r\n"));
        EXPECT_TRUE(definition().endsWith("Phone= 1 \r\nSupportPhone=\r\nValue=" + sample.stored + "\r\n"));
        user.close();
        startFor(u"Ann Larkin"_s);
        old = sample.password;
    }
}

TEST_F(MainPassword, WhatIsTypedWrongChangesNothing) {
    start(storedOld);
    const QByteArray before = definition();
    changeTo(u"fresh"_s, u"Old"_s, u"fresh"_s);
    EXPECT_EQ(
        told(),
        u"Invalid Old Password: The old password does not match your current password.  No changes can be made."_s);
    EXPECT_EQ(user.text(u"txtNew"_s) + user.text(u"txtConfirm"_s), u""_s);
    EXPECT_EQ(selected(u"txtOld"_s), 3);
    user.type(u"old"_s);
    user.fill(u"txtNew"_s, u"fresh"_s);
    user.fill(u"txtConfirm"_s, u"flesh"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(
        told(),
        u"Invalid Old Password: The new password does not match your confirmation password.  No changes can be made."_s);
    EXPECT_EQ(selected(u"txtNew"_s), 3);
    EXPECT_EQ(user.text(u"txtConfirm"_s), u""_s);
    user.key(u"Escape"_s);
    EXPECT_EQ(definition(), before);
    EXPECT_FALSE(canEdit());
}

TEST_F(MainPassword, WhatCantBeStoredIsNoPassword) {
    start(storedOld);
    const QByteArray before = definition();
    platform::files::setReadOnly(path(u"SplashDef.txt"_s));
    changeTo(u"fresh"_s, u"old"_s, u"fresh"_s);
    EXPECT_TRUE(boxText().startsWith(u"70 - "_s)) << boxText().toStdString();
    user.answer(u"OK"_s);
    EXPECT_EQ(user.form()["name"_L1].toString(), u"frmChangePassword"_s);
    EXPECT_FALSE(canEdit());
    platform::files::setReadOnly(path(u"SplashDef.txt"_s), false);
    const auto refusalOf = [&](const QString& password) {
        user.fill(u"txtOld"_s, u"old"_s);
        user.fill(u"txtNew"_s, password);
        user.fill(u"txtConfirm"_s, password);
        user.click(u"cmdOK"_s);
        QString words = boxText();
        user.answer(u"OK"_s);
        return words;
    };
    // A character whose cipher is a line feed would keep the program from starting again.
    EXPECT_TRUE(
        refusalOf(u"a\u20AC"_s).startsWith(u"The character \"\u20AC\" (U+20AC) can't be used as character 2 of "_s));
    // What the code page doesn't have couldn't be told from a question mark the next time.
    EXPECT_TRUE(
        refusalOf(u"x\u041F\u0430"_s).startsWith(u"The character \"\u041F\" (U+041F) can't be used in a password."_s));
    EXPECT_TRUE(refusalOf(u"\U0001F600"_s).startsWith(u"The character \"\U0001F600\" (U+1F600) "_s));
    EXPECT_EQ(user.text(u"txtConfirm"_s), u""_s);
    EXPECT_EQ(definition(), before);
    user.key(u"Escape"_s);
    EXPECT_FALSE(canEdit());
    openNode(u"LogIn"_s);
    user.fill(u"txtPassword"_s, u"old"_s);
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(canEdit());
}

}  // namespace
