#include "data/sql_dialect.h"

#include "family_file.h"

namespace {

struct Spelling {
    const char* foreign;
    const char* ours;
};

TEST(Dialect, TurnsForeignSpellingsOutsideQuotes) {
    const Spelling spellings[] = {
        {"Select a from T where c = True or d=false", "Select a from T where c = (-1) or d=0"},
        {"Select T.true from T where c is true", "Select T.true from T where c is true"},
        {"Select 'or True' from T where c = 'it is true'", "Select 'or True' from T where c = 'it is true'"},
        {"Select [true], \"false\" from T where c = 'it''s true'",
         "Select [true], \"false\" from T where c = 'it''s true'"},
        {"Select a from T -- true", "Select a from T -- true"},
        {"select * from Person Order by Seq, ID", "select * from Person Order by Seq, ID"},
    };
    for (const auto& [foreign, ours] : spellings)
        EXPECT_EQ(data::toSqlite(QString::fromUtf8(foreign)).toStdString(), ours);
}

struct Refusal {
    const char* statement;
    int number;
    const char* words;
};

class Errors : public FamilyFile {};

TEST_F(Errors, CarryTheProvidersNumbersAndWords) {
    const Refusal refusals[] = {
        {"SELECT ID from Person where LegalName = 'O'Brien'", -2147217900,
         "Syntax error (missing operator) in query expression 'LegalName = 'O'Brien''."},
        {"Select * from Person where LegalName = 'a'b'c' Order By ID", -2147217900,
         "Syntax error (missing operator) in query expression 'LegalName = 'a'b'c''."},
        {"Select * from Person where LegalName = 'Jones''", -2147217900,
         "Syntax error in string in query expression 'LegalName = 'Jones'''."},
        {"Select * from Person where LegalName = '''", -2147217900,
         "Syntax error in string in query expression 'LegalName = ''''."},
        {"Select * from Person where ID =", -2147217900, "Syntax error (missing operator) in query expression 'ID ='."},
        {"select * from Person WHERE ID = ", -2147217900,
         "Syntax error (missing operator) in query expression 'ID ='."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= 1,234", -2147217900,
         "Syntax error (comma) in query expression 'Seq >= 1,234'."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= (1,234)", -2147217900,
         "Syntax error (comma) in query expression 'Seq >= (1,234)'."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= $5", -2147217900,
         "Syntax error (missing operator) in query expression 'Seq >= $5'."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= &H10", -2147217900,
         "Syntax error (missing operator) in query expression 'Seq >= &H10'."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= 5-", -2147217900,
         "Syntax error (missing operator) in query expression 'Seq >= 5-'."},
        {"Update Person Set Seq = Seq + 1 Where Seq >= 1d2", -2147217900,
         "Syntax error (missing operator) in query expression 'Seq >= 1d2'."},
        {"Select * from where 1=2", -2147217900, "Syntax error in FROM clause."},
        {"Select * from Person order by ,", -2147217900, "Syntax error in ORDER BY clause."},
        {"Update Person Set = 4", -2147217900, "Syntax error in UPDATE statement."},
        {"Insert Person", -2147217900, "Syntax error in INSERT INTO statement."},
        {"Hello", -2147217900,
         "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."},
        {"Select * from Person; Delete from Person", -2147217900, "Characters found after end of SQL statement."},
        {"Select * from Nobody", -2147217865,
         "The database engine cannot find the input table or query 'Nobody'.  Make sure it exists and "
         "that its name is spelled correctly."},
        {"Select * from Person where Nobody = 1", -2147217904, "No value given for one or more required parameters."},
        {"Select Nobody from Person", -2147217904, "No value given for one or more required parameters."},
        {"Select * from Person where ID = ?", -2147217904, "No value given for one or more required parameters."},
    };
    for (const auto& [statement, number, expected] : refusals) {
        data::Recordset rows(data::Opening::Screen);
        QString words;
        EXPECT_EQ(errorOf([&] { open(rows, statement); }, &words), number) << statement;
        EXPECT_EQ(words.toStdString(), expected) << statement;
        EXPECT_FALSE(rows.isOpen());
    }
    EXPECT_EQ(stored("SELECT sum(Seq) FROM Person"), u"6"_s) << "nothing was carried out";
}

TEST_F(Errors, TextIsNeverCutAtANul) {
    data::Recordset rows(data::Opening::Screen);
    QString words;
    const QString statement = u"Delete from Person where LegalName = 'A"_s + QChar(0) + u"B'"_s;
    EXPECT_EQ(errorOf([&] { rows.open(statement, connection_); }, &words), -2147217900);
    EXPECT_TRUE(words.startsWith(u"Syntax error in string"_s));
    EXPECT_EQ(stored("SELECT count(*) FROM Person"), u"3"_s);
}

TEST_F(Errors, LegalSpellingsOfNumbersAreUnderstood) {
    for (const char* number : {"(2)", "+2", " 2 ", "2.0", "2e0", "1.5"}) {
        data::Recordset rows(data::Opening::Screen);
        open(rows, ("Select * from Person where Seq >= " + std::string(number)).c_str());
        EXPECT_EQ(rows.recordCount(), 2) << number;
    }
}

}  // namespace
