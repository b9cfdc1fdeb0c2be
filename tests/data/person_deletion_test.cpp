#include "data/person_deletion.h"

#include "family_file.h"

namespace {

class PersonDeletion : public FamilyFile {};

TEST_F(PersonDeletion, ReachesEveryTableThatHasTheColumn) {
    sql("CREATE TABLE [Two Words] (PersonID INTEGER, x TEXT); CREATE TABLE [Order] (PersonID INTEGER);"
        "CREATE TABLE MSysOwn (PersonID INTEGER); CREATE TABLE mSysTheirs (PersonID INTEGER);"
        "CREATE TABLE Lower (personid INTEGER); CREATE TABLE Attachments (BugNum TEXT);"
        "INSERT INTO [Two Words] VALUES (1, 'a'), (2, 'b'); INSERT INTO [Order] VALUES (1), (2);"
        "INSERT INTO MSysOwn VALUES (1); INSERT INTO mSysTheirs VALUES (1); INSERT INTO Lower VALUES (1);"
        "INSERT INTO Attachments VALUES ('Kbk_1_0')");
    data::deletePersonsRows(connection_, 1);
    EXPECT_EQ(stored("SELECT group_concat(Name) FROM Pet"), u"Rex,Stray"_s);
    EXPECT_EQ(stored("SELECT group_concat(x) FROM [Two Words]"), u"b"_s);
    EXPECT_EQ(stored("SELECT count(*) FROM [Order]"), u"1"_s);
    EXPECT_EQ(stored("SELECT count(*) FROM MSysOwn"), u"1"_s);
    EXPECT_EQ(stored("SELECT count(*) FROM mSysTheirs"), u"0"_s) << "only the exact letters mark a system table";
    EXPECT_EQ(stored("SELECT count(*) FROM Lower"), u"1"_s) << "the column's name counts letter by letter";
    EXPECT_EQ(stored("SELECT count(*) FROM Attachments"), u"1"_s);
    EXPECT_EQ(stored("SELECT count(*) FROM Person"), u"3"_s);
}

TEST_F(PersonDeletion, StopsAtAViewAfterTheTables) {
    sql("CREATE VIEW Tame AS SELECT * FROM Pet; CREATE VIEW Names AS SELECT LegalName FROM Person");
    EXPECT_EQ(errorOf([&] { data::deletePersonsRows(connection_, 1); }), -2147467259);
    EXPECT_EQ(stored("SELECT count(*) FROM Pet"), u"2"_s) << "what was deleted before stays deleted";
}

TEST_F(PersonDeletion, ListsTablesThenViews) {
    sql("CREATE VIEW Aunts AS SELECT * FROM Person; CREATE TABLE attic (x)");
    const std::vector<QString> expected{u"attic"_s, u"Person"_s, u"Pet"_s, u"Aunts"_s};
    EXPECT_EQ(connection_.tableNames(), expected);
}

}  // namespace
