#include "data/column_type.h"

#include "family_file.h"

using data::Opening;
using data::Recordset;

namespace {

struct Setting {
    const char* column;
    QVariant given;
    const char* stored;  ///< as the file holds it; empty for error -2147217887
};

class Columns : public FamilyFile {};

QDateTime moment(int year, int month, int day, int hour = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, 0), Qt::UTC);
}

TEST_F(Columns, ConvertWhatTheyAreGiven) {
    const QString twenty(20, u'x');
    const Setting settings[] = {
        {"LegalName", u"O'Brien \"é\""_s, "O'Brien \"é\""},
        {"LegalName", twenty, "xxxxxxxxxxxxxxxxxxxx"},
        {"LegalName", twenty + u'x', ""},
        {"LegalName", QVariant(), "null"},
        {"LegalName", 12.5, "12.5"},
        {"LegalName", moment(2001, 5, 13), "5/13/2001"},
        {"Comment", u"longer than the name may be"_s, "longer than the name may be"},
        {"Born", u"5/13/2001"_s, "2001-05-13"},
        {"Born", u"june 1 2002"_s, "2002-06-01"},
        {"Born", u"15:30"_s, "1899-12-30 15:30:00"},
        {"Born", u"2001-05-13"_s, "2001-05-13"},
        {"Born", QDate(1897, 4, 4), "1897-04-04"},
        {"Born", moment(2001, 5, 13), "2001-05-13"},
        {"Born", moment(2001, 5, 13, 15), "2001-05-13 15:00:00"},
        {"Born", u""_s, "null"},
        {"Born", QVariant(), "null"},
        {"Born", u"soon"_s, ""},
        {"Worth", u"1234.5"_s, "1234.5"},
        {"Worth", u"1,234.50"_s, "1234.5"},
        {"Worth", u""_s, "null"},
        {"Worth", u"12abc"_s, ""},
        {"Worth", 3, "3.0"},
        {"Seq", u"12"_s, "12"},
        {"Seq", 2.5, "2"},
        {"Seq", u"3.5"_s, "4"},
        {"Seq", 32767.4, "32767"},
        {"Seq", 40000, ""},
        {"Seq", std::nan(""), ""},
        {"ID", 4, ""},
        {"IsMinor", true, "-1"},
        {"IsMinor", 1, "-1"},
        {"IsMinor", 0, "0"},
        {"IsMinor", u"False"_s, "0"},
        {"IsMinor", QVariant(), "0"},
        {"IsMinor", u"perhaps"_s, ""},
    };
    for (const auto& [column, given, expected] : settings) {
        Recordset rows(Opening::Screen);
        open(rows, "Select * from Person where ID = 1");
        const int error = errorOf([&] { rows.setValue(QString::fromUtf8(column), given); });
        EXPECT_EQ(error, *expected == 0 ? -2147217887 : 0) << column << " " << given.toString().toStdString();
        rows.update();
        if (error == 0) {
            EXPECT_EQ(stored((std::string("SELECT \"") + column + "\" FROM Person").c_str()).toStdString(), expected);
        }
    }
}

TEST_F(Columns, GiveValuesOfTheirKind) {
    sql("UPDATE Person SET Born = '2001-05-13 15:00:00', IsMinor = -1, Worth = 2.5, LegalName = '' WHERE ID = 1;"
        "UPDATE Person SET Born = '2001-05-13', LegalName = NULL WHERE ID = 2;"
        "UPDATE Person SET Born = 'never' WHERE ID = 3");
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person Order By ID");
    EXPECT_EQ(rows.value(u"Born"_s), moment(2001, 5, 13, 15));
    EXPECT_EQ(rows.value(u"IsMinor"_s), true);
    EXPECT_EQ(rows.value(u"Worth"_s), 2.5);
    EXPECT_TRUE(rows.value(u"LegalName"_s).isValid());
    rows.moveNext();
    EXPECT_EQ(rows.value(u"Born"_s), moment(2001, 5, 13));
    EXPECT_FALSE(rows.value(u"LegalName"_s).isValid());
    rows.moveNext();
    EXPECT_FALSE(rows.value(u"Born"_s).isValid()) << "a text that another program left there";
}

TEST_F(Columns, EmptyTextIsNotNull) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person where ID = 1");
    rows.setValue(u"LegalName"_s, u""_s);
    rows.update();
    EXPECT_EQ(stored("SELECT count(*) FROM Person WHERE LegalName = ''"), u"1"_s);
}

}  // namespace
