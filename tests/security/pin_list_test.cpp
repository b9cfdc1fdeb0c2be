#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "data/cipher.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class PinList : public support::Household {
protected:
    void start() {
        addMembers({u"Ann Larkin"_s, u"Bob"_s});
        user.start();
        select(u"Ann Larkin"_s);
    }
    void select(const QString& name) { user.pick(u"MDIHost.cbPerson"_s, name); }
    void open(const QString& password) {
        openNode(u"PINsPasswords"_s);
        user.fill(u"txtPassword"_s, password);
        user.click(u"cmdOK"_s);
    }
    void add(const QString& number, const QString& account, const QString& secret) {
        user.click(u"cmdAdd"_s);
        user.fill(u"txtSequence"_s, number);
        user.fill(u"txtAccount"_s, account);
        user.fill(u"txtUsername"_s, u"me & you"_s);
        user.fill(u"txtPINPass"_s, secret);
        user.click(u"cmdOK"_s);
    }
    void changePassword(const QString& old, const QString& password) {
        openNode(u"ChangePINPassword"_s);
        user.fill(u"txtOld"_s, old);
        user.fill(u"txtNew"_s, password);
        user.fill(u"txtConfirm"_s, password);
        user.click(u"cmdOK"_s);
    }
    /// "1 Bank=pin|..." of a member; a secret that is enciphered in the file is shown as {plain}.
    QString stored(int person) {
        const int rows = cell(u"SELECT count(*) FROM PIN_Password WHERE PersonID = %1"_s.arg(person)).toInt();
        QStringList texts;
        for (int i = 0; i < rows; ++i) {
            const auto column = [&](const QString& name) {
                return cell(
                    u"SELECT %1 FROM PIN_Password WHERE PersonID = %2 ORDER BY Seq, ID LIMIT 1 OFFSET %3"_s.arg(name)
                        .arg(person)
                        .arg(i));
            };
            const QString secret = column(u"PIN_Password"_s);
            const bool plain = column(u"Encrypted"_s) == u"PT"_s;
            EXPECT_TRUE(plain || column(u"Encrypted"_s) == data::cipher(u"PT"_s));
            texts.append(column(u"Seq"_s) + u' ' + column(u"Account"_s) + u'=' +
                         (plain ? secret : u'{' + data::cipher(secret) + u'}'));
        }
        return texts.join(u'|');
    }
};

TEST_F(PinList, SecretsArePlainInTheFileOnlyWhileTheListIsOpen) {
    start();
    select(u"Whole Family"_s);
    openNode(u"PINsPasswords"_s);
    EXPECT_EQ(dismissBox(), u"No Family Member Selected"_s);
    select(u"Ann Larkin"_s);
    open({});
    EXPECT_EQ(status(), u"Record: 0"_s);
    add(u"1"_s, u"Bank & Co"_s, u"12 & 34"_s);
    add(u"1"_s, u"Mail"_s, u"it's"_s);
    EXPECT_EQ(stored(1), u"1 Mail=it's|2 Bank && Co=12 && 34"_s);
    user.select(u"grdDataGrid"_s, 0);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(user.text(u"txtUsername"_s), u"me & you"_s);
    EXPECT_EQ(user.control(u"txtSequence"_s)["selLength"_L1].toInt(), 1);
    user.fill(u"txtSequence"_s, u"2"_s);
    user.click(u"cmdOK"_s);
    user.click(u"cmdClose"_s);
    const QString atRest = u"1 Bank && Co={12 && 34}|2 Mail={it's}"_s;
    EXPECT_EQ(stored(1), atRest);
    const QString bytes = cell(u"SELECT hex(group_concat(PIN_Password || Encrypted)) FROM PIN_Password"_s);
    // Every way of closing: another member, the end of the program.
    open({});
    EXPECT_EQ(stored(1), u"1 Bank && Co=12 && 34|2 Mail=it's"_s);
    select(u"Bob"_s);
    EXPECT_EQ(stored(1), atRest);
    open({});
    EXPECT_EQ(user.grid()["rows"_L1].toArray().size(), 0);
    select(u"Ann Larkin"_s);
    open({});
    user.close();
    EXPECT_FALSE(running());
    EXPECT_EQ(cell(u"SELECT hex(group_concat(PIN_Password || Encrypted)) FROM PIN_Password"_s), bytes);
}

TEST_F(PinList, ARunThatDiedInBetweenIsHealedRowByRow) {
    exec(
        u"INSERT INTO PIN_Password (Seq, Account, PIN_Password, PersonID, Encrypted) VALUES (1, 'A', 'plain', 1, "
        "'PT'), (2, 'B', '%1', 1, '%2')"_s.arg(data::cipher(u"other"_s), data::cipher(u"PT"_s)));
    start();
    open({});
    EXPECT_EQ(stored(1), u"1 A=plain|2 B=other"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(stored(1), u"1 A={plain}|2 B={other}"_s);
}

TEST_F(PinList, OneChangeOfThePasswordCountsForEveryList) {
    exec(
        u"INSERT INTO PIN_Password (Seq, Account, PIN_Password, PersonID, Encrypted) VALUES (1, 'A', '', 1, 'x'), "
        "(1, 'B', '', 2, 'x'), (1, 'C', '', 2, 'x')"_s);
    exec(u"UPDATE PIN_Password SET Encrypted = '%1'"_s.arg(data::cipher(u"PT"_s)));
    start();
    changePassword({}, u"o'ne"_s);
    const QString row = u"PINs And Passwords Screen={"_s;
    EXPECT_EQ(stored(1), u"1 "_s + row + u"o'ne}|2 A={}"_s);
    EXPECT_EQ(stored(2), u"2 B={}|2 C={}"_s);
    select(u"Bob"_s);
    changePassword({}, u"bobs"_s);
    EXPECT_EQ(stored(1), u"2 "_s + row + u"o'ne}|3 A={}"_s);
    changePassword(u"o'ne"_s, u"both"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Old Password"_s);
    user.fill(u"txtOld"_s, u"bobs"_s);
    user.fill(u"txtNew"_s, u"both"_s);
    user.fill(u"txtConfirm"_s, u"both"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(stored(1), u"2 "_s + row + u"both}|3 A={}"_s);
    select(u"Ann Larkin"_s);
    open(u"o'ne"_s);
    EXPECT_EQ(dismissBox(), u"Login"_s);
    user.type(u"both"_s);
    user.click(u"cmdOK"_s);

    // The row of the password stands in the list, but isn't changed there.
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(dismissBox(), u"No Edit Allowed"_s);
    user.click(u"cmdDelete"_s);
    EXPECT_EQ(dismissBox(), u"No Delete Allowed"_s);
    openNode(u"ChangePINPassword"_s);
    EXPECT_EQ(dismissBox(), u"Close PINs and Passwords Screen"_s);
    user.select(u"grdDataGrid"_s, 1);
    user.click(u"cmdDelete"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(stored(1), u"1 PINs And Passwords Screen=both"_s);
    EXPECT_EQ(stored(2), u"1 "_s + row + u"both}|3 B={}|3 C={}"_s);
}

}  // namespace
