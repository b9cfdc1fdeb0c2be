#include "find/book_search.h"

#include <gtest/gtest.h>

#include "app/shown_rows.h"
#include "data/template.h"
#include "platform/base/runtime_error.h"
#include "tests/support/database_file.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class BookSearch : public testing::Test {
protected:
    BookSearch() {
        data::createTemplate(path_);
        exec(u"INSERT INTO Person (LegalName, Seq) VALUES ('Ann Larkin', 1), ('Bob Larkin', 2)"_s);
        connection_.open(path_);
    }

    void exec(const QString& statement) const { support::exec(path_, statement); }
    /// The places as "Category|Member|Field: Text", one a line.
    QString found(const QString& typed, qint16 member = 0) {
        find::BookSearch search(connection_, app::shownRows());
        search.begin(typed, member);
        while (search.step(1s)) {
        }
        QStringList lines;
        for (const auto* hits : {&search.first(), &search.others()}) {
            for (const find::Hit& hit : *hits) {
                const find::Finding finding = search.finding(hit);
                lines << u"%1|%2|%3: %4"_s.arg(finding.category, finding.member, finding.field, finding.text);
            }
        }
        EXPECT_EQ(search.places(), lines.size());
        return lines.join(u'\n');
    }

    support::TestFolder folder_;
    const QString path_ = folder_.path(u"FamilyInfo.mdb"_s);
    data::Connection connection_;
};

/// A value of its kind, and the word that it is found by.
struct Filling {
    QString value;
    QString word;
};

Filling fillingOf(const data::Column& column) {
    switch (column.kind) {
        case data::FieldKind::Date:
            return {u"'1987-06-05'"_s, u"1987"_s};
        case data::FieldKind::Number:
        case data::FieldKind::Whole:
            return {u"4711"_s, u"4711"_s};
        default:
            return {u"'Wörd'"_s, u"word"_s};
    }
}

TEST_F(BookSearch, EveryFieldOfEveryWindowIsLookedThrough) {
    exec(u"DELETE FROM Person"_s);
    QMap<QString, QStringList> expected;
    for (const session::ShownRows& shown : app::shownRows()) {
        QStringList columns{u"ID"_s};
        // The first row of each table has the number 1, and all that have an owner or a site have that one.
        QStringList values{shown.type > 1 || shown.siteTable ? u"NULL"_s : u"1"_s};
        const auto add = [&](const QString& column, const QString& value) {
            columns << column;
            values << value;
        };
        if (!shown.typeColumn.isEmpty()) add(shown.typeColumn, QString::number(shown.type));
        if (shown.siteTable) add(u"ParentID"_s, u"1"_s);
        if (shown.haveOwners()) add(u"PersonID"_s, u"1"_s);
        for (const data::Column& column : shown.columns) {
            const Filling filling = fillingOf(column);
            add(column.name, filling.value);
            QString label = column.label;
            if (label.endsWith(u':')) label.chop(1);
            expected[filling.word] << shown.category + u'|' + label;
        }
        exec(u"INSERT INTO \"%1\" (\"%2\") VALUES (%3)"_s.arg(shown.table->name, columns.join(u"\", \""_s),
                                                              values.join(u", "_s)));
    }
    for (auto word = expected.begin(); word != expected.end(); ++word) {
        QStringList places;
        const QStringList lines = found(word.key()).split(u'\n');
        for (const QString& line : lines)
            places << line.section(u'|', 0, 0) + u'|' + line.section(u'|', 2).section(u": "_s, 0, 0);
        places.sort();
        word->sort();
        EXPECT_EQ(places.join(u'\n').toStdString(), word->join(u'\n').toStdString());
    }
    EXPECT_GT(expected[u"word"_s].size(), 400);
}

TEST_F(BookSearch, AllWordsAreInOneRecordAndTheMembersComeFirst) {
    exec(u"INSERT INTO HomeOwned (PersonID, City, Description) VALUES (1, 'Ames', 'Elm house'), (2, 'Ames', 'Mill')"_s);
    exec(u"INSERT INTO Doctors (Name, Comment) VALUES ('Dr. Ames', 'Elm Street')"_s);
    exec(u"INSERT INTO Obligations (PersonID, Type, Name) VALUES (1, 4, 'Elm Bank'), (1, 3, 'Elm Credit')"_s);
    const QString annsHome = u"Home(s)|Ann Larkin|City: Ames"_s;
    const QString bobsHome = u"Home(s)|Bob Larkin|City: Ames"_s;
    const QString doctor = u"Doctors||Doctor: Dr. Ames"_s;
    EXPECT_EQ(found(u"ames"_s), QStringList({annsHome, bobsHome, doctor}).join(u'\n'));
    EXPECT_EQ(found(u"AMES"_s, 2), QStringList({bobsHome, doctor, annsHome}).join(u'\n'));
    // The words may stand in several fields; each field with one of them is a place.
    EXPECT_EQ(found(u"elm  ames"_s, 2), (QStringList{doctor, u"Doctors||Comment: Elm Street"_s,
                                                     u"Home(s)|Ann Larkin|Description: Elm house"_s, annsHome}
                                             .join(u'\n')));
    EXPECT_EQ(found(u"elm nowhere"_s), QString());
    EXPECT_EQ(found(u"  "_s), QString());
    EXPECT_EQ(found(u"elm b"_s), u"Mortgages|Ann Larkin|Mortgage Holder: Elm Bank"_s) << "in the window's own words";
    EXPECT_EQ(found(u"larkin bob"_s), u"Birth Information|Bob Larkin|Legal Name: Bob Larkin"_s);
}

TEST_F(BookSearch, WhatNoWindowShowsIsNotFound) {
    exec(u"INSERT INTO HomeOwned (PersonID, City) VALUES (1, 'Lost'), (9, 'Lost')"_s);
    exec(
        u"INSERT INTO Inventory (TypeID, ParentID, Type) VALUES (1, 1, 'Lost lamp'), (1, 7, 'Lost'), (9, 1, 'Lost')"_s);
    exec(u"INSERT INTO Obligations (PersonID, Type, Name) VALUES (1, 9, 'Lost')"_s);
    exec(
        u"INSERT INTO PIN_Password (PersonID, Account, UserName, PIN_Password, Encrypted) VALUES "
        "(1, 'Lost', 'Lost', 'Lost', 'PT')"_s);
    exec(
        u"INSERT INTO Attachments (BugNum, SeqNum, FileName, OldFileName, fileDesc) VALUES "
        "('Hom_1_1', 1, 'a', 'lost.pdf', 'Deed'), ('Hom_1_7', 1, 'lost', 'lost.pdf', ''), ('odd', 1, 'c', 'lost', '')"_s);
    EXPECT_EQ(found(u"lost"_s),
              (QStringList{u"Home(s)|Ann Larkin|City: Lost"_s, u"Home(s), Inventory|Ann Larkin|Type: Lost lamp"_s,
                           u"Home(s)|Ann Larkin|Attachment: lost.pdf"_s}
                   .join(u'\n')));
    EXPECT_EQ(found(u"deed lost"_s),
              u"Home(s)|Ann Larkin|Attachment: lost.pdf\nHome(s)|Ann Larkin|Attachment description: Deed"_s);
}

TEST_F(BookSearch, TheTextIsThatAroundTheMatchInOneLine) {
    const QString sea = u"the sea is wide "_s.repeated(30);
    exec(u"INSERT INTO Contacts (Comment) VALUES ('%1and\r\nCAFÉ  Central %1')"_s.arg(sea));
    const QString text = found(u"cafe"_s).section(u": "_s, 1);
    EXPECT_TRUE(text.startsWith(u"… "_s)) << qPrintable(text);
    EXPECT_TRUE(text.endsWith(u"…"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"wide and CAFÉ Central the sea"_s)) << qPrintable(text);
    EXPECT_LT(text.indexOf(u"CAFÉ"_s), 40);
    EXPECT_LT(text.size(), 210);
}

TEST_F(BookSearch, ItGoesOnInSlicesCountsAllAndKeepsTheFirst) {
    constexpr int rows = 6000;
    exec(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) INSERT INTO Contacts (Name, "
        u"Addr) "
        "SELECT 'Name', 'Name' FROM n"_s.arg(rows));
    find::BookSearch search(connection_, app::shownRows());
    search.begin(u"name"_s, 0);
    int slices = 0;
    while (search.step(200us))
        ++slices;
    EXPECT_GT(slices, 3);
    EXPECT_TRUE(search.isOver());
    EXPECT_EQ(search.places(), 2 * rows);
    EXPECT_EQ(search.first().size(), find::BookSearch::mostKept);
    // One that is under way gives way to the next, and lets go of the file.
    search.begin(u"name"_s, 0);
    ASSERT_TRUE(search.step(1us));
    search.begin(u"bob"_s, 0);
    while (search.step(1s)) {
    }
    EXPECT_EQ(search.places(), 1);
    search.begin(u"name"_s, 0);
    ASSERT_TRUE(search.step(1us));
    search.begin({}, 0);
    exec(u"UPDATE Contacts SET Name = 'Other'"_s);
    // Nor does one stand in the way when the file is closed under it.
    search.begin(u"name"_s, 0);
    ASSERT_TRUE(search.step(1us));
    connection_.close();
    EXPECT_THROW(search.step(1us), platform::RuntimeError);
}

TEST_F(BookSearch, AFailureEndsIt) {
    exec(u"DROP TABLE Contacts"_s);
    find::BookSearch search(connection_, app::shownRows());
    search.begin(u"name"_s, 0);
    EXPECT_THROW(while (search.step(1s)){}, platform::RuntimeError);
    EXPECT_TRUE(search.isOver());
}

}  // namespace
