#include <QStringList>

#include "family_file.h"

using data::EditMode;
using data::Opening;
using data::Recordset;

namespace {

struct Trace {
    const char* rows;     ///< names of the rows to begin with
    const char* steps;    ///< one word an operation
    const char* outcome;  ///< errors on the way, then what is current, position and count
};

std::ostream& operator<<(std::ostream& out, const Trace& trace) {
    return out << trace.rows << ": " << trace.steps;
}

void perform(Recordset& rows, const QString& step) {
    if (step == u"first"_s)
        rows.moveFirst();
    else if (step == u"last"_s)
        rows.moveLast();
    else if (step == u"next"_s)
        rows.moveNext();
    else if (step == u"prev"_s)
        rows.movePrevious();
    else if (step == u"add"_s)
        rows.addNew();
    else if (step == u"save"_s)
        rows.updateBatch();
    else if (step == u"cancel"_s)
        rows.cancelUpdate();
    else if (step == u"delete"_s)
        rows.deleteCurrent();
    else if (step == u"requery"_s)
        rows.requery();
    else if (step == u"close"_s)
        rows.close();
    else if (step.startsWith(u"mark"_s))
        rows.setBookmark(step.mid(4).toDouble());
    else if (step.startsWith(u"="_s))
        rows.setValue(u"LegalName"_s, step.mid(1));
    else
        FAIL() << step.toStdString();
}

QString current(const Recordset& rows) {
    if (rows.bof() || rows.eof()) return rows.bof() && rows.eof() ? u"both"_s : rows.bof() ? u"BOF"_s : u"EOF"_s;
    if (rows.editMode() == EditMode::Deleted) return u"deleted"_s;
    const QVariant name = rows.value(u"LegalName"_s);
    return name.isNull() ? u"null"_s : name.toString();
}

QString standing(const Recordset& rows) {
    QString text = current(rows);
    if (rows.editMode() != EditMode::Deleted) text += u" "_s + QString::number(rows.absolutePosition());
    return text + u"/"_s + QString::number(rows.recordCount());
}

class Moves : public FamilyFile, public testing::WithParamInterface<Trace> {};

TEST_P(Moves, LeadWhereTheyShould) {
    QByteArray setup = "DELETE FROM Person;";
    for (const QChar name : QString::fromUtf8(GetParam().rows))
        setup += "INSERT INTO Person(LegalName) VALUES ('" + QByteArray(1, name.toLatin1()) + "');";
    sql(setup.constData());
    Recordset rows(Opening::Screen);
    open(rows, "select * from Person Order by ID");
    QString outcome;
    for (const auto& step : QString::fromUtf8(GetParam().steps).split(u' ', Qt::SkipEmptyParts))
        if (const int error = errorOf([&] { perform(rows, step); })) outcome += QString::number(error) + u' ';
    EXPECT_EQ((outcome + standing(rows)).toStdString(), GetParam().outcome);
}

const Trace traces[] = {
    {"ABC", "", "A 1/3"},
    {"ABC", "last", "C 3/3"},
    {"ABC", "last next", "EOF -3/3"},
    {"ABC", "last next next", "3021 EOF -3/3"},
    {"ABC", "last next prev", "C 3/3"},
    {"ABC", "last next first", "A 1/3"},
    {"ABC", "prev", "BOF -2/3"},
    {"ABC", "prev prev", "3021 BOF -2/3"},
    {"ABC", "prev next", "A 1/3"},
    {"ABC", "prev last", "C 3/3"},
    {"ABC", "next =x", "x 2/3"},
    {"", "", "both -1/0"},
    {"", "first last next prev", "3021 3021 3021 3021 both -1/0"},
    {"", "=x delete mark1", "3021 3021 -2147217906 both -1/0"},
    {"ABC", "last next =x delete", "3021 3021 EOF -3/3"},
    // deletion
    {"ABC", "delete", "deleted/2"},
    {"ABC", "delete next", "B 1/2"},
    {"ABC", "next delete prev", "A 1/2"},
    {"ABC", "next delete next prev", "A 1/2"},
    {"ABC", "next delete first last", "C 2/2"},
    {"ABC", "last delete next", "EOF -3/2"},
    {"ABC", "last delete next last", "B 2/2"},
    {"ABC", "delete prev", "BOF -2/2"},
    {"ABC", "delete delete =x", "-2147217885 -2147217885 deleted/2"},
    {"ABC", "delete cancel save next", "B 1/2"},
    {"ABC", "delete next mark1 mark3", "-2147217906 C 2/2"},
    {"ABC", "=x delete next", "B 1/2"},
    {"A", "delete next", "both -1/0"},
    {"A", "delete next last", "3021 both -1/0"},
    {"A", "delete last", "both -1/0"},
    {"A", "delete prev next", "3021 both -1/0"},
    {"A", "delete add =B save prev", "BOF -2/1"},
    // new rows
    {"ABC", "add", "null 4/4"},
    {"ABC", "add cancel", "A 1/3"},
    {"ABC", "next add =x cancel", "B 2/3"},
    {"ABC", "last next add cancel", "EOF -3/3"},
    {"ABC", "delete add cancel", "deleted/2"},
    {"ABC", "add delete", "3219 null 4/4"},
    {"", "add cancel", "both -1/0"},
    {"", "add =x save last", "x 1/1"},
    {"ABC", "next add =x save", "x 4/4"},
    {"ABC", "next add =x save next", "EOF -3/4"},
    {"ABC", "next add =x first", "A 1/4"},
    {"ABC", "next add =x first last", "x 4/4"},
    {"ABC", "add =x add =y save", "y 5/5"},
    {"ABC", "add save prev", "C 3/4"},
    {"ABC", "add =x save mark4 mark2 mark5", "-2147217906 B 2/4"},
    {"ABC", "delete next add =x save first", "B 1/3"},
    // edits
    {"ABC", "=x cancel", "A 1/3"},
    {"ABC", "=x save", "x 1/3"},
    {"ABC", "=x next prev", "x 1/3"},
    {"ABC", "=x mark3 mark1", "x 1/3"},
    {"ABC", "=x add cancel", "x 1/3"},
    {"ABC", "=123456789012345678901", "-2147217887 A 1/3"},
    {"ABC", "=x requery close cancel", "3219 3219 A 1/3"},
    {"ABC", "save cancel next", "B 2/3"},
    // bookmarks
    {"ABC", "mark2", "B 2/3"},
    {"ABC", "mark0 mark4 mark1.5", "-2147217906 -2147217906 -2147217906 A 1/3"},
    {"ABC", "last next mark2", "B 2/3"},
    // requery
    {"ABC", "last requery", "A 1/3"},
    {"ABC", "delete requery", "B 1/2"},
    {"A", "delete requery", "both -1/0"},
    {"", "add =x save requery", "x 1/1"},
};

INSTANTIATE_TEST_SUITE_P(Traces, Moves, testing::ValuesIn(traces));

class ForwardOnly : public FamilyFile {};

TEST_F(ForwardOnly, StreamsToTheEndAndNowhereElse) {
    Recordset rows;
    open(rows, "Select LegalName from Person order by LegalName");
    QString names;
    for (; !rows.eof(); rows.moveNext())
        names += rows.value(u"LegalName"_s).toString();
    EXPECT_EQ(names, u"ABC"_s);
    EXPECT_EQ(rows.recordCount(), -1);
    EXPECT_EQ(rows.absolutePosition(), -1);
    EXPECT_FALSE(rows.bof());
    EXPECT_EQ(errorOf([&] { rows.moveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { rows.movePrevious(); }), -2147217884);
    EXPECT_EQ(errorOf([&] { rows.setValue(u"LegalName"_s, u"x"_s); }), 3251);
    rows.moveFirst();
    EXPECT_EQ(rows.value(u"LegalName"_s), u"A"_s);
}

TEST_F(ForwardOnly, OneRowLookUpLeftOpenHoldsNoLock) {
    Recordset rows;
    open(rows, "Select Max(ID) as TheID from Person Where ID < 3");
    EXPECT_EQ(rows.value(u"TheID"_s), 2);
    sql("UPDATE Person SET Seq = 0");
    EXPECT_EQ(stored("SELECT sum(Seq) FROM Person"), u"0"_s);
}

TEST_F(ForwardOnly, AggregatesOfNothing) {
    Recordset rows;
    open(rows, "Select Count(*) as n, Min(ID) as low from Person where ID > 99");
    EXPECT_EQ(rows.value(u"n"_s), 0);
    EXPECT_FALSE(rows.value(u"low"_s).isValid());
    rows.release();
    open(rows, "Select * from Person where 1=2");
    EXPECT_TRUE(rows.bof() && rows.eof());
    EXPECT_EQ(rows.fieldNames().size(), 8);
}

TEST_F(ForwardOnly, WritesAreDurableWhileAStreamIsOpen) {
    Recordset rows;
    open(rows, "Select * from Person");
    Recordset writer(Opening::Screen);
    open(writer, "Select * from Person");
    writer.setValue(u"Comment"_s, u"kept"_s);
    writer.update();
    EXPECT_EQ(stored("SELECT Comment FROM Person WHERE ID = 1"), u"kept"_s);
}

}  // namespace
