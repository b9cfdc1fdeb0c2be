#include "data/schema.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>

#include "data/states.h"
#include "data/tables.h"
#include "data/template.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace {

class TemplateFile : public testing::Test {
protected:
    TemplateFile() { data::createTemplate(path_); }

    SQLite::Database open() const { return {path_.toStdString(), SQLite::OPEN_READWRITE}; }

    QTemporaryDir folder_;
    const QString path_ = folder_.filePath(u"FamilyInfo_Empty.mdb"_s);
};

QString text(SQLite::Database& database, const char* sql) {
    return QString::fromStdString(database.execAndGet(sql).getString());
}

QString plan(SQLite::Database& database, const std::string& sql) {
    SQLite::Statement explain(database, "EXPLAIN QUERY PLAN " + sql);
    QString steps;
    while (explain.executeStep())
        steps += QString::fromStdString(explain.getColumn(3).getString()) + u'\n';
    return steps;
}

}  // namespace

TEST(Tables, TextBoxesStandBeforeCheckBoxes) {
    for (const auto& table : data::allTables()) {
        const auto isCheck = [](const data::Column& column) { return column.kind == data::FieldKind::YesNo; };
        EXPECT_TRUE(std::ranges::is_partitioned(table.columns, std::not_fn(isCheck))) << table.name.data();
    }
}

TEST(Tables, AreFoundInAnyCase) {
    EXPECT_EQ(data::table(u"cds").name, "CDs"_L1);
    EXPECT_THROW(data::table(u"Boats"), std::out_of_range);
}

// The declared types are how the kinds are read back from a family's file, and its keys are how its rows are found.
TEST_F(TemplateFile, DeclaresKeysAndKinds) {
    auto database = open();
    const std::vector<std::pair<const char*, QString>> cases{
        {"SocialSecurity",
         u"ID INTEGER, PersonID INTEGER, MonthlyBenefit DOUBLE, Comment LONGTEXT, Collecting BOOLEAN, "
         "Retirement BOOLEAN, Disability BOOLEAN, Dependent BOOLEAN, Survivor BOOLEAN"_s},
        {"MedicalLog",
         u"ID INTEGER, PersonID INTEGER, MedicalID INTEGER, TreatmentStartDate DATE, TreatmentEndDate DATE, "
         "Description LONGTEXT"_s},
        {"Inventory",
         u"ID INTEGER, TypeID INTEGER, ParentID INTEGER, Type TEXT(50), Cost DOUBLE, YearPurchased DOUBLE, "
         "Description LONGTEXT"_s},
        {"CoverPage", u"ID INTEGER, Heading1 TEXT, SubHeading1 TEXT, Heading2 TEXT, SubHeading2 TEXT, Date TEXT"_s},
        {"AssetLiquidation", u"ID INTEGER, Seq INTEGER, Asset TEXT, Directions LONGTEXT"_s},
        // The guarantee of a checking account can be ticked and is never stored.
        {"CheckingAccounts",
         u"ID INTEGER, PersonID INTEGER, BankName TEXT(50), Branch TEXT(50), Addr TEXT(50), City TEXT(50), "
         "State TEXT, Zip TEXT(10), Contact TEXT(50), Phone TEXT(50), AccountNumber TEXT(50), Type TEXT(50), "
         "MinimumBalance DOUBLE, AdditionalNames LONGTEXT, Comment LONGTEXT"_s},
    };
    for (const auto& [table, columns] : cases) {
        const std::string list =
            "SELECT group_concat(name || ' ' || type, ', ') FROM pragma_table_info('" + std::string(table) + "')";
        EXPECT_EQ(text(database, list.c_str()), columns) << table;
    }
}

TEST_F(TemplateFile, OffersNoStateFirst) {
    auto database = open();
    SQLite::Statement states(database, "SELECT * FROM LUStates ORDER BY Name");
    QStringList names;
    while (states.executeStep())
        names << QString::fromStdString(states.getColumn(0).getString());
    EXPECT_EQ(names.size(), 1 + 50 + 1 + 5);
    EXPECT_EQ(names.first(), u"--"_s);
    EXPECT_EQ(names.value(1), u"Alabama"_s);
    EXPECT_EQ(names.last(), u"Wyoming"_s);
    EXPECT_TRUE(names.contains(u"District of Columbia"_s));
    QStringList defined;
    for (const auto name : data::stateNames())
        defined << name;
    EXPECT_EQ(names, defined);
}

TEST_F(TemplateFile, NeverGivesANumberTwice) {
    auto database = open();
    for (const auto& table : data::allTables()) {
        if (table.keys == data::Keys::None) continue;
        const std::string name = table.name.data();
        database.exec("INSERT INTO " + name + " DEFAULT VALUES");
        database.exec("INSERT INTO " + name + " DEFAULT VALUES");
        database.exec("DELETE FROM " + name);
        database.exec("INSERT INTO " + name + " DEFAULT VALUES");
        EXPECT_EQ(database.execAndGet("SELECT ID FROM " + name).getInt(), 3) << name;
    }
}

TEST_F(TemplateFile, ComparesEveryTextWithoutCase) {
    auto database = open();
    for (const auto& table : data::allTables()) {
        for (const auto& column : data::storedColumns(table)) {
            using enum data::FieldKind;
            const auto others = {Number, Whole, Date, YesNo};
            if (std::ranges::find(others, column.kind) != others.end()) continue;
            const std::string name = table.name.data();
            const std::string quoted = '"' + std::string(column.name.data()) + '"';
            database.exec("INSERT INTO " + name + " (" + quoted + ") VALUES ('Ann')");
            EXPECT_GE(database.execAndGet("SELECT Count(*) FROM " + name + " WHERE " + quoted + " = 'aNN'").getInt(), 1)
                << name << "." << quoted;
        }
    }
}

TEST_F(TemplateFile, StartsYesNoAtNoAndTheSequenceAtZero) {
    auto database = open();
    database.exec("INSERT INTO Person (LegalName) VALUES ('Ann')");
    EXPECT_EQ(text(database, "SELECT Seq || ' ' || IsMinor || ' ' || (BirthDate IS NULL) FROM Person"), u"0 0 1"_s);
}

// What the windows ask again and again must come from an index alone: a scan of fat rows is a hundred times slower.
TEST_F(TemplateFile, AnswersCountsAndKeyListsFromIndexesAlone) {
    auto database = open();
    const std::string home = "SELECT HomeOwned.ID FROM Person INNER JOIN HomeOwned ON Person.ID = HomeOwned.PersonID ";
    const std::string loan =
        "SELECT Obligations.ID FROM Person INNER JOIN Obligations ON Person.ID = Obligations.PersonID ";
    const std::vector<std::pair<std::string, QString>> cases{
        {"SELECT Count(*) FROM HomeOwned", u"HomeOwned USING COVERING INDEX"_s},
        {"SELECT Count(*) FROM HomeOwned WHERE PersonID = 3", u"HomeOwned USING COVERING INDEX"_s},
        {home + "ORDER BY Person.Seq, HomeOwned.ID", u"HomeOwned USING COVERING INDEX"_s},
        {home + "WHERE HomeOwned.PersonID = 3 ORDER BY Person.Seq, HomeOwned.ID", u"HomeOwned USING COVERING INDEX"_s},
        {loan + "Where Type = 3 ORDER BY Person.Seq, Obligations.ID", u"Obligations USING COVERING INDEX"_s},
        {"SELECT ID FROM Inventory WHERE TypeID = 1 and ParentID = 7", u"Inventory USING COVERING INDEX"_s},
        {"SELECT Count(*) FROM Attachments WHERE BugNum = 'Hom_1_2'", u"COVERING INDEX Attachments_by_BugNum"_s},
        {"SELECT * FROM Attachments WHERE FileName = 'a.txt'", u"INDEX Attachments_by_FileName"_s},
    };
    for (const auto& [sql, expected] : cases) {
        const QString steps = plan(database, sql);
        EXPECT_TRUE(steps.contains(expected)) << sql << '\n' << steps.toStdString();
    }
    EXPECT_FALSE(plan(database, "SELECT * FROM Attachments WHERE BugNum = 'a' ORDER BY SeqNum").contains(u"B-TREE"_s));
}

TEST_F(TemplateFile, ReplacesAnOlderFileWhole) {
    open().exec("INSERT INTO Doctors (Name) VALUES ('Smith')");
    data::createTemplate(path_);
    auto database = open();
    EXPECT_EQ(text(database, "SELECT Count(*) FROM Doctors"), u"0"_s);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{u"FamilyInfo_Empty.mdb"_s});
}

TEST(Template, FailsWithoutLeavingAnything) {
    const QTemporaryDir folder;
    EXPECT_THROW(data::createTemplate(folder.filePath(u"absent/a.mdb"_s)), platform::RuntimeError);
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"taken.mdb/inside"_s));
    EXPECT_THROW(data::createTemplate(folder.filePath(u"taken.mdb"_s)), platform::RuntimeError);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::NoDotAndDotDot), QStringList{});
}
