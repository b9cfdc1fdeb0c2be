#include "data/daily_copy.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "data/book_check.h"
#include "data/connection.h"
#include "data/recordset.h"
#include "data/template.h"
#include "hostile_disk.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;

namespace {

const QDate monday(2026, 11, 23);

class DailyCopies : public testing::Test, protected support::TestFolder {
protected:
    DailyCopies() { data::createTemplate(live()); }

    [[nodiscard]] QString live() const { return path(u"FamilyInfo.mdb"_s); }
    void exec(const char* statement) const {
        SQLite::Database(live().toStdString(), SQLite::OPEN_READWRITE).exec(statement);
    }
    bool copyOf(QDate day) const { return data::makeDailyCopy(live(), path(u"Backup"_s), day, {}); }
    [[nodiscard]] QStringList copies() const { return namesIn(u"Backup/Daily"_s); }
};

TEST_F(DailyCopies, SevenDaysStayAndWhatElseLiesThereToo) {
    copyOf(monday);
    EXPECT_FALSE(QFile::exists(path(u"Backup"_s))) << "the folder of backups is the family's to make";
    makeFolder(u"Backup/Daily"_s);
    const QStringList others{u"2026-11-01.mdb"_s, u"FamilyInfo_2026-11-01.mdb.txt"_s, u"FamilyInfo_old.mdb"_s};
    for (const QString& name : others)
        write(u"Backup/Daily/"_s + name, "x");
    write(u"Backup/Daily/.kinbook-0123456789abcdef0123456789abcdef"_s, "half a copy of a run that died");
    for (int day = 0; day < 9; ++day)
        EXPECT_TRUE(copyOf(monday.addDays(day)));
    QStringList expected = others;
    for (int day = 2; day < 9; ++day)
        expected << u"FamilyInfo_%1.mdb"_s.arg(monday.addDays(day).toString(Qt::ISODate));
    expected.sort();
    EXPECT_EQ(copies(), expected);
    // The clock was wrong, or is wrong now: the copy of today is none of the oldest.
    EXPECT_TRUE(copyOf(monday.addYears(-20)));
    EXPECT_TRUE(copies().contains(u"FamilyInfo_2006-11-23.mdb"_s));
    EXPECT_EQ(copies().size(), expected.size());
}

TEST_F(DailyCopies, HoldTheDaysFirstStateWithoutASecretInClear) {
    exec("INSERT INTO Person (LegalName) VALUES ('Ann')");
    exec(
        "INSERT INTO PIN_Password (PersonID, Account, PIN_Password, Encrypted) VALUES (1, 'Bank', 'opensesame', 'PT')");
    makeFolder(u"Backup"_s);
    copyOf(monday);
    exec("INSERT INTO Person (LegalName) VALUES ('Benedikt')");
    copyOf(monday);
    const QString copy = path(u"Backup/Daily/FamilyInfo_2026-11-23.mdb"_s);
    EXPECT_NO_THROW(data::checkDatabase(copy));
    const QByteArray bytes = bytesOf(copy);
    EXPECT_TRUE(bytes.contains("Ann"));
    EXPECT_FALSE(bytes.contains("Benedikt"));
    EXPECT_FALSE(bytes.contains("opensesame"));
}

TEST_F(DailyCopies, ThatFailLeaveNothingBehindAndTakeNoOlderOneAway) {
    makeFolder(u"Backup"_s);
    for (int day = -7; day < 0; ++day)
        ASSERT_TRUE(copyOf(monday.addDays(day)));
    const QStringList before = copies();
    std::stop_source stopped;
    stopped.request_stop();
    EXPECT_FALSE(data::makeDailyCopy(live(), path(u"Backup"_s), monday, stopped.get_token()));
    EXPECT_EQ(copies(), before);

    QFile file(live());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 2) &&
                file.write(QByteArray(90'000, 'z')) > 0);
    file.close();
    EXPECT_FALSE(copyOf(monday)) << "a damaged book";
    EXPECT_EQ(copies(), before);

    data::createTemplate(path(u"whole.mdb"_s));
    for (const int kilobytes : {256, 100}) {
        SmallDisk disk(kilobytes);
        if (!disk.isMounted()) GTEST_SKIP() << "no disk of its own for the test";
        if (kilobytes == 100) disk.fill();
        EXPECT_FALSE(data::makeDailyCopy(path(u"whole.mdb"_s), disk.folder(), monday, {}));
        const QDir daily(disk.folder() + u"/Daily"_s);
        EXPECT_EQ(daily.entryList(QDir::Files | QDir::Hidden), QStringList());
    }
}

/// All rows of a table hold one number at any moment; in a copy of two moments they don't.
TEST_F(DailyCopies, AreOfOneMomentWhileTheFamilySaves) {
    exec(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
        "INSERT INTO Contacts (Comment, Zip) SELECT hex(randomblob(1500)), '0' FROM n");
    makeFolder(u"Backup"_s);
    data::Connection connection;
    connection.open(live());
    std::atomic<bool> copying = true;
    bool made = false;
    std::thread copier([&] {
        made = copyOf(monday);
        copying = false;
    });
    int saves = 0;
    while (copying) {
        data::Recordset rows(data::Opening::LookUp);
        ASSERT_NO_THROW(rows.open(u"UPDATE Contacts SET Zip = '%1' WHERE ID % 500 = 0"_s.arg(++saves), connection));
        std::this_thread::sleep_for(std::chrono::milliseconds(20 * saves));
    }
    copier.join();
    EXPECT_TRUE(made);
    EXPECT_GT(saves, 1);
    const SQLite::Database copy(path(u"Backup/Daily/FamilyInfo_2026-11-23.mdb"_s).toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement numbers(copy, "SELECT count(DISTINCT Zip) FROM Contacts WHERE ID % 500 = 0");
    ASSERT_TRUE(numbers.executeStep());
    EXPECT_EQ(numbers.getColumn(0).getInt(), 1);
}

}  // namespace
