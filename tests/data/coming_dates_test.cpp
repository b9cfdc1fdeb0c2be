#include "data/coming_dates.h"

#include <gtest/gtest.h>

#include "data/connection.h"
#include "data/tables.h"
#include "data/template.h"
#include "tests/support/database_file.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

QDate day(const char* text) {
    return QDate::fromString(QString::fromLatin1(text), Qt::ISODate);
}

class ComingDates : public testing::Test {
protected:
    ComingDates() {
        createTemplate(path_);
        sql("INSERT INTO Person (ID, Seq, LegalName) VALUES (1, 2, 'Bob'), (2, 1, 'Ann')");
        connection_.open(path_);
    }

    void sql(const std::string& statements) const { support::exec(path_, QString::fromStdString(statements)); }

    /// "2026-11-25 2 Ann: Bank, Maturity" for each.
    QStringList told(const char* today, int days) {
        QStringList lines;
        for (const ComingDate& each : comingDates(connection_, day(today), days)) {
            lines << u"%1 %2 %3: %4, %5"_s.arg(each.date.toString(Qt::ISODate))
                         .arg(each.days)
                         .arg(each.member, each.record, each.what);
        }
        return lines;
    }

    support::TestFolder folder_;
    const QString path_ = folder_.path(u"family.mdb"_s);
    Connection connection_;
};

TEST(ComingDays, AYearlyDayReturnsAndIsToldInWords) {
    const struct {
        const char *first, *today, *next, *words;
    } returns[] = {
        {"1950-03-01", "2026-03-01", "2026-03-01", "Today"},
        {"1950-03-01", "2026-02-28", "2026-03-01", "Tomorrow"},
        {"1950-03-01", "2026-03-02", "2027-03-01", "In 364 days"},
        {"1950-03-01", "2027-03-02", "2028-03-01", "In 365 days"},
        {"1950-12-31", "2026-12-31", "2026-12-31", "Today"},
        {"1950-01-01", "2026-12-31", "2027-01-01", "Tomorrow"},
        {"1952-02-29", "2026-02-28", "2026-02-28", "Today"},
        {"1952-02-29", "2026-03-01", "2027-02-28", "In 364 days"},
        {"1952-02-29", "2028-02-28", "2028-02-29", "Tomorrow"},
        {"1952-02-29", "2027-03-01", "2028-02-29", "In 365 days"},
        {"2027-06-05", "2026-11-23", "2027-06-05", "In 194 days"},
    };
    for (const auto& [first, today, next, words] : returns) {
        const QDate found = nextReturn(day(first), day(today));
        EXPECT_EQ(found, day(next)) << first << " seen on " << today;
        EXPECT_EQ(daysText(static_cast<int>(day(today).daysTo(found))).toStdString(), words);
    }
    EXPECT_EQ(daysText(-1), u"Yesterday"_s);
    EXPECT_EQ(daysText(-90), u"90 days ago"_s);
}

TEST_F(ComingDates, TheSpanReachesFromNinetyDaysBackToItsLastDay) {
    for (const int days : {-91, -90, -1, 0, 30, 31, 90, 91, 365, 366}) {
        const QDate date = day("2026-11-23").addDays(days);
        sql("INSERT INTO CDs (PersonID, BankName, MaturityDate) VALUES (2, '" + std::to_string(days) + "', '" +
            date.toString(Qt::ISODate).toStdString() + (days == 30 ? " 15:30:00" : "") + "')");
    }
    const auto days = [&](int span) {
        QStringList found;
        for (const ComingDate& each : comingDates(connection_, day("2026-11-23"), span)) {
            EXPECT_EQ(QString::number(each.days), each.record);
            found << each.record;
        }
        return found.join(u' ');
    };
    EXPECT_EQ(days(30), u"-90 -1 0 30"_s);
    EXPECT_EQ(days(90), u"-90 -1 0 30 31 90"_s);
    EXPECT_EQ(days(365), u"-90 -1 0 30 31 90 91 365"_s);
}

TEST_F(ComingDates, OneDayIsInTheOrderOfTheFamilyAndARecordGoesByItsFirstText) {
    sql("INSERT INTO Bonds (PersonID, Payer, CUSIP, MaturityDate, InterestDate, ValuationDate) VALUES"
        " (1, NULL, '', '2026-12-01', '2026-11-30', '2026-11-29'), (9, 'Nobody', '', '2026-12-01', NULL, NULL);"
        "INSERT INTO AutoInsurance (PersonID, Coverage, PolicyNumber, ExpirationDate) VALUES"
        " (2, '', 'P-7', '2026-12-01'), (1, 'All risks', 'P-8', '2026-11-01');"
        "INSERT INTO Passports (PersonID, Citizenship, ResAlienCardExpDate, DateExpired, DateIssued) VALUES"
        " (2, 'Chile', '2026-11-20', '2026-11-24', '2026-11-25')");
    const QStringList expected{
        u"2026-11-01 -22 Bob: All risks, Expiration Date"_s, u"2026-11-20 -3 Ann: Chile, Resident Alien Card Expires"_s,
        u"2026-11-24 1 Ann: Chile, Date Expired"_s,          u"2026-11-30 7 Bob: , Call Date"_s,
        u"2026-12-01 8 Ann: P-7, Expiration Date"_s,         u"2026-12-01 8 Bob: , Maturity"_s};
    EXPECT_EQ(told("2026-11-23", 30), expected);
    const ComingDate first = comingDates(connection_, day("2026-11-23"), 30).front();
    EXPECT_EQ(first.table, "AutoInsurance"_L1);
    EXPECT_EQ(first.column, "ExpirationDate"_L1);
    EXPECT_EQ(first.id, 2);
    EXPECT_EQ(first.memberID, 1);
}

TEST_F(ComingDates, BirthdaysAndWeddingDaysReturnUntilAMarriageHasEnded) {
    sql("UPDATE Person SET BirthDate = '1952-02-29' WHERE ID = 2; UPDATE Person SET BirthDate = '1950-02-20' WHERE ID "
        "= 1;"
        "INSERT INTO Marriage (PersonID, MarriedTo, Date, DeathDate, DivorceDate) VALUES"
        " (2, 'Bob', '1975-03-01', NULL, NULL), (2, 'Carl', '1971-03-02', NULL, '1974-01-01'),"
        " (1, 'Dora', '1970-03-03', '1973-03-03', NULL)");
    // What returned a few days ago is no date that ran out, and a death or divorce is nothing to come.
    const QStringList expected{u"2027-02-28 6 Ann: Ann, Birthday"_s, u"2027-03-01 7 Ann: Bob, Wedding day"_s};
    EXPECT_EQ(told("2027-02-22", 90), expected);
}

TEST(ComingColumns, TheseDatesAndNoOthersTellOfDaysToCome) {
    QStringList once;
    QStringList others;
    for (const Table& table : allTables()) {
        for (const Column& column : table.columns) {
            const QString name = table.name + u'.' + column.name;
            if (column.coming.when == Coming::When::Never) continue;
            EXPECT_EQ(column.kind, FieldKind::Date) << name.toStdString();
            EXPECT_TRUE(table.keys == Keys::Owner || table.name == "Person"_L1) << name.toStdString();
            (column.coming.when == Coming::When::Once ? once : others) << name;
        }
    }
    EXPECT_EQ(once.join(u' '),
              u"Passports.ResAlienCardExpDate Passports.DateExpired Memberships.ExpirationDate CDs.MaturityDate "
              "Annuities.MaturityDate Bonds.MaturityDate Bonds.InterestDate SavingsBonds.MaturityDate "
              "TreasuryNotes.MaturityDate TreasuryNotes.InterestDate OtherSecurities.MaturityDate "
              "OtherSecurities.InterestDate RetirementAccounts.WithdrawalStartDate LifeInsurance.ExpirationDate "
              "AutoInsurance.ExpirationDate HomeInsurance.ExpirationDate OtherInsurance.ExpirationDate"_s);
    EXPECT_EQ(others.join(u' '), u"Person.BirthDate Marriage.Date Marriage.DeathDate Marriage.DivorceDate"_s);
}

}  // namespace

}  // namespace data
