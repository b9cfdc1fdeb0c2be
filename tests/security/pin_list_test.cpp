#include <gtest/gtest.h>

#include <QFile>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

// Enciphered texts were worked out by tests/data/cipher_bytes.py.
class PinList : public support::Household {
protected:
    const QString atRest_ = u"1 A={C39EC3A6C3B7C3BAC3BD}|2 B={C381C3BEC3BEC3B6C3A1}"_s;

    void start() {
        addMembers({u"Ann Larkin"_s, u"Bob"_s});
        startFor(u"Ann Larkin"_s);
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
    /// "1 Bank=pin|..." of a member; a secret that is enciphered in the file is shown as the {hex} of its UTF-8.
    QString stored(int person) {
        const QString rows = cell(
            u"SELECT group_concat(Seq || ' ' || Account || '=' || CASE Encrypted WHEN 'PT' THEN PIN_Password ELSE '{' "
            u"|| "
            "hex(PIN_Password) || '}' END, '|') FROM (SELECT * FROM PIN_Password WHERE PersonID = %1 ORDER BY Seq, ID)"_s
                .arg(person));
        EXPECT_EQ(cell(u"SELECT count(*) FROM PIN_Password WHERE hex(Encrypted) NOT IN ('5054', 'C3BEC39E')"_s),
                  u"0"_s);
        return rows == u"null"_s ? QString() : rows;
    }
    /// Refuses the writes of a secret for which a condition holds, until allow().
    void refuse(const QString& condition) {
        exec(
            u"CREATE TRIGGER refusal BEFORE UPDATE OF PIN_Password ON PIN_Password WHEN %1 BEGIN SELECT RAISE(ABORT, "
            "'refused'); END"_s.arg(condition));
    }
    void allow() { exec(u"DROP TRIGGER refusal"_s); }
    /// Ends the run and leaves the file as a kill at the moment of the call would have.
    void kill() {
        const QByteArray left = bytesOf(u"FamilyInfo.mdb"_s);
        user.click(u"cmdClose"_s);
        user.close();
        write(u"FamilyInfo.mdb"_s, left);
    }
    void insert(const QString& rows) {
        exec(u"INSERT INTO PIN_Password (Seq, Account, PIN_Password, PersonID, Encrypted) VALUES "_s + rows);
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
    EXPECT_EQ(selected(u"txtSequence"_s), 1);
    user.fill(u"txtSequence"_s, u"2"_s);
    user.click(u"cmdOK"_s);
    user.click(u"cmdClose"_s);
    const QString atRest = u"1 Bank && Co={C5B8C2B8C2B6C2B5C2B5C2ACC2B8C2A4}|2 Mail={C387C3BEC2B1C3A0}"_s;
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

TEST_F(PinList, AKilledRunIsHealedByTheNextStart) {
    start();
    open({});
    add(u"1"_s, u"A"_s, u"plain"_s);
    add(u"2"_s, u"B"_s, u"other"_s);
    kill();
    EXPECT_EQ(stored(1), u"1 A=plain|2 B=other"_s);
    user.start();
    EXPECT_EQ(stored(1), atRest_);
    select(u"Ann Larkin"_s);
    // A row that is plain for whatever reason is taken as it is.
    exec(u"UPDATE PIN_Password SET PIN_Password = 'plain', Encrypted = 'PT' WHERE Account = 'A'"_s);
    open({});
    EXPECT_EQ(stored(1), u"1 A=plain|2 B=other"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(stored(1), atRest_);
}

TEST_F(PinList, APasswordChangedAfterAKillOpensTheList) {
    start();
    changePassword({}, u"bobs"_s);
    open(u"bobs"_s);
    kill();
    startFor(u"Ann Larkin"_s);
    changePassword(u"bobs"_s, u"both"_s);
    EXPECT_EQ(stored(1), u"1 PINs And Passwords Screen={C38CC3A5C3A2C3BB}"_s);
    // Also while the row is still plain.
    exec(u"UPDATE PIN_Password SET PIN_Password = 'both', Encrypted = 'PT'"_s);
    changePassword(u"both"_s, u"bobs"_s);
    EXPECT_EQ(stored(1), u"1 PINs And Passwords Screen={C38CC3A5C3B4C3A0}"_s);
    open(u"bobs"_s);
    EXPECT_EQ(activeWindow(), u"frmPinsAndPasswords"_s);
}

TEST_F(PinList, SecretsThatCouldntBeEncipheredAreToldAndTheNextStartDoesIt) {
    insert(
        u"(1, 'A', '\u00DE\u00E6\u00F7\u00FA\u00FD', 1, '\u00FE\u00DE'), (2, 'B', '\u00C1\u00FE\u00FE\u00F6\u00E1', 1, '\u00FE\u00DE')"_s);
    start();
    open({});
    EXPECT_EQ(stored(1), u"1 A=plain|2 B=other"_s);
    refuse(u"old.Account = 'A'"_s);
    user.click(u"cmdClose"_s);
    EXPECT_TRUE(boxText().contains(u"PINs and passwords could not be enciphered again"_s)) << boxText().toStdString();
    EXPECT_EQ(boxIcon(), u"critical"_s);
    EXPECT_EQ(dismissBox(), u"PINs And Passwords"_s);
    EXPECT_EQ(stored(1), u"1 A=plain|2 B=other"_s);
    EXPECT_FALSE(forms().contains(u"frmPinsAndPasswords"_s));
    user.close();
    user.start();
    EXPECT_EQ(dismissBox(), u"PINs And Passwords"_s);
    user.close();
    allow();
    user.start();
    EXPECT_EQ(stored(1), atRest_);

    // An opening that fails half-way takes back what it has done, or says that it couldn't.
    select(u"Ann Larkin"_s);
    refuse(u"old.Account = 'B' AND new.Encrypted = 'PT'"_s);
    open({});
    EXPECT_EQ(dismissBox(), u"NodeClick Error"_s);
    EXPECT_EQ(boxTitle(), u""_s);
    EXPECT_EQ(stored(1), atRest_);
    allow();
    refuse(u"old.Account = 'B' OR new.Encrypted <> 'PT'"_s);
    open({});
    EXPECT_EQ(dismissBox(), u"PINs And Passwords"_s);
    EXPECT_EQ(dismissBox(), u"NodeClick Error"_s);
    EXPECT_EQ(forms().last(), u"frmLoginPIN"_s);
    EXPECT_EQ(stored(1), u"1 A=plain|2 B={C381C3BEC3BEC3B6C3A1}"_s);
    user.close();
    allow();
    user.start();
    EXPECT_EQ(stored(1), atRest_);
}

TEST_F(PinList, ABackupOfAnOpenListHoldsNoSecret) {
    write(u"Attachments/deed.txt"_s, "deed");
    start();
    open({});
    for (int i = 1; i <= 40; ++i)
        insert(u"(%1, 'Account %1', 'Readable%1 and long enough to need more room when enciphered', 1, 'PT')"_s.arg(i));
    user.menu(u"mBackup"_s);
    user.choose(path(u"Mon.mdb"_s));
    user.answer(u"Yes"_s);
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    const QByteArray copy = bytesOf(u"Mon.mdb"_s);
    EXPECT_GT(copy.size(), bytesOf(u"FamilyInfo.mdb"_s).size());
    EXPECT_FALSE(copy.contains("Readable"));
    EXPECT_TRUE(bytesOf(u"FamilyInfo.mdb"_s).contains("Readable40"));
    QFile::remove(path(u"FamilyInfo.mdb"_s));
    QFile::copy(path(u"Mon.mdb"_s), path(u"FamilyInfo.mdb"_s));
    EXPECT_TRUE(stored(1).startsWith(u"1 Account 1={C3BC"_s)) << stored(1).toStdString();
}

TEST_F(PinList, NothingIsKeptUnderNobody) {
    start();
    exec(u"DELETE FROM Person"_s);
    user.click(u"cmdFirst"_s);
    EXPECT_EQ(personID(), 0);
    EXPECT_FALSE(user.session()["gbWholeFamily"_L1].toBool());
    for (const QString& node : {u"PINsPasswords"_s, u"ChangePINPassword"_s}) {
        openNode(node);
        EXPECT_EQ(dismissBox(), u"No Family Member Selected"_s);
        EXPECT_FALSE(forms().last().endsWith(u"Password"_s));
    }
}

TEST_F(PinList, TheLoginComesUpEmptyHoweverItWasLeft) {
    insert(u"(1, 'PINs And Passwords Screen', '\u00CC\u00E5\u00E2\u00FB', 1, '\u00FE\u00DE')"_s);
    start();
    for (const QString& way : {u"right"_s, u"cancel"_s, u"close box"_s, u"wrong"_s}) {
        openNode(u"PINsPasswords"_s);
        EXPECT_EQ(user.text(u"txtPassword"_s), u""_s) << way.toStdString();
        user.type(way == u"right"_s ? u"both"_s : u"oops"_s);
        if (way == u"right"_s) {
            user.click(u"cmdOK"_s);
            user.click(u"cmdClose"_s);
        } else if (way == u"close box"_s) {
            user.dismiss();
        } else {
            user.click(u"cmdCancel"_s);
        }
    }
    EXPECT_FALSE(forms().contains(u"frmPinsAndPasswords"_s));
}

TEST_F(PinList, ASecretIsWhatItsCipherCanBringBack) {
    start();
    open({});
    add(u"1"_s, u"A"_s, u"1\u20AC \u041F\u0430\u0440"_s);
    EXPECT_TRUE(boxText().startsWith(u"The character \"\u041F\" (U+041F) can't be used in a PIN or password."_s));
    user.answer(u"OK"_s);
    EXPECT_EQ(focus(), u"txtPINPass"_s);
    EXPECT_EQ(user.text(u"txtAccount"_s), u"A"_s);
    // Of these the cipher makes the codes 0, 10 and 39.
    const QString odd = u"\u00AE\u20AC\u00B1"_s;
    user.fill(u"txtPINPass"_s, odd);
    user.click(u"cmdOK"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(stored(1), u"1 A={000A27}"_s);
    open({});
    EXPECT_EQ(stored(1), u"1 A="_s + odd);
    user.click(u"cmdClose"_s);
    changePassword({}, u"\u0431"_s);
    EXPECT_EQ(dismissBox(), u"Character Not Allowed"_s);
    EXPECT_EQ(stored(1), u"1 A={000A27}"_s);
}

TEST_F(PinList, OneChangeOfThePasswordCountsForEveryList) {
    insert(u"(1, 'A', '', 1, '\u00FE\u00DE'), (1, 'B', '', 2, '\u00FE\u00DE'), (1, 'C', '', 2, '\u00FE\u00DE')"_s);
    start();
    changePassword({}, u"o'ne"_s);
    const QString row = u"PINs And Passwords Screen={"_s;
    EXPECT_EQ(stored(1), u"1 "_s + row + u"C381C2ADC3B8C3B6}|2 A={}"_s);
    EXPECT_EQ(stored(2), u"2 B={}|2 C={}"_s);
    select(u"Bob"_s);
    changePassword({}, u"bobs"_s);
    EXPECT_EQ(stored(1), u"2 "_s + row + u"C381C2ADC3B8C3B6}|3 A={}"_s);
    changePassword(u"o'ne"_s, u"both"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Old Password"_s);
    user.fill(u"txtOld"_s, u"bobs"_s);
    user.fill(u"txtNew"_s, u"both"_s);
    user.fill(u"txtConfirm"_s, u"both"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(stored(1), u"2 "_s + row + u"C38CC3A5C3A2C3BB}|3 A={}"_s);
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
    deleteRecord();
    EXPECT_EQ(stored(1), u"1 PINs And Passwords Screen=both"_s);
    EXPECT_EQ(stored(2), u"1 "_s + row + u"C38CC3A5C3A2C3BB}|3 B={}|3 C={}"_s);
}

}  // namespace
