#include <QStringList>

#include "family_file.h"

using data::EditMode;
using data::Opening;
using data::Recordset;
using platform::ColumnKind;

namespace {

class Editing : public FamilyFile {
protected:
    static void listen(Recordset& rows, QStringList& log) {
        QObject::connect(&rows, &Recordset::moveComplete, [&log] { log << u"move"_s; });
        QObject::connect(&rows, &Recordset::willChangeRecord, [&log] { log << u"will"_s; });
        QObject::connect(&rows, &Recordset::rowShown, [&log] { log << u"shown"_s; });
        QObject::connect(&rows, &Recordset::collecting, [&log] { log << u"collect"_s; });
        QObject::connect(&rows, &Recordset::valueSet, [&log](const QString& name) { log << u"set:"_s + name; });
    }
};

TEST_F(Editing, TellsWhatHappensInOrder) {
    Recordset rows(Opening::Screen);
    QStringList log;
    listen(rows, log);
    const auto heard = [&log](const std::function<void()>& operation) {
        log.clear();
        errorOf(operation);
        return log.join(u' ').toStdString();
    };
    EXPECT_EQ(heard([&] { open(rows, "Select * from Person"); }), "shown move");
    EXPECT_EQ(heard([&] { rows.moveNext(); }), "shown move");
    EXPECT_EQ(heard([&] { rows.moveLast(), rows.moveNext(); }), "shown move shown move");
    EXPECT_EQ(heard([&] { rows.moveNext(); }), "move") << "a move that fails";
    EXPECT_EQ(heard([&] { rows.setBookmark(1); }), "shown move");
    EXPECT_EQ(heard([&] { rows.setBookmark(7); }), "move");
    EXPECT_EQ(heard([&] { rows.update(); }), "collect");
    EXPECT_EQ(heard([&] { rows.cancelUpdate(); }), "shown") << "nothing pending, but boxes may hold what was typed";
    EXPECT_EQ(heard([&] { rows.setValue(u"Seq"_s, 4); }), "will set:Seq");
    EXPECT_EQ(heard([&] { rows.setValue(u"Seq"_s, 5); }), "set:Seq");
    EXPECT_EQ(heard([&] { rows.cancelUpdate(); }), "will shown");
    EXPECT_EQ(heard([&] { rows.setValue(u"Seq"_s, 4), rows.moveNext(); }), "will set:Seq will shown move");
    EXPECT_EQ(heard([&] { rows.addNew(); }), "will shown move");
    EXPECT_EQ(heard([&] { rows.cancelUpdate(); }), "will shown move");
    EXPECT_EQ(heard([&] { rows.addNew(), rows.update(); }), "will shown move collect will set:ID");
    EXPECT_EQ(heard([&] { rows.deleteCurrent(); }), "will");
    EXPECT_EQ(heard([&] { rows.requery(); }), "shown move");
    EXPECT_EQ(heard([&] { rows.close(); }), "shown");
    EXPECT_EQ(heard([&] { open(rows, "Select * from Person where 1=2"); }), "shown move");
}

TEST_F(Editing, HandlerOfAMoveMayNotMove) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    int refused = 0;
    QObject::connect(&rows, &Recordset::moveComplete, [&] { refused = errorOf([&] { rows.moveFirst(); }); });
    rows.moveNext();
    EXPECT_EQ(refused, 3219);
    EXPECT_EQ(rows.absolutePosition(), 2);
}

TEST_F(Editing, WhatControlsHandOverIsWrittenByUpdateAlone) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    QObject::connect(&rows, &Recordset::collecting, [&] { rows.setValue(u"Comment"_s, u"typed"_s); });
    rows.moveNext();
    rows.moveFirst();
    EXPECT_EQ(stored("SELECT count(Comment) FROM Person"), u"0"_s);
    rows.updateBatch();
    EXPECT_EQ(rows.editMode(), EditMode::None);
    EXPECT_EQ(stored("SELECT Comment FROM Person WHERE ID = 1"), u"typed"_s);
}

TEST_F(Editing, NewRowReadsItsNumberAndDefaultsAfterTheWrite) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Pet");
    rows.addNew();
    EXPECT_FALSE(rows.value(u"ID"_s).isValid());
    EXPECT_EQ(rows.value(u"Legs"_s), 4);
    rows.setValue(u"Name"_s, u"Joe"_s);
    rows.update();
    EXPECT_EQ(rows.value(u"id"_s), 5);
    EXPECT_EQ(stored("SELECT Name || Legs FROM Pet WHERE ID = 5"), u"Joe4"_s);
    rows.deleteCurrent();
    rows.addNew();
    rows.update();
    EXPECT_EQ(rows.value(u"ID"_s), 6) << "a number is never given twice";
}

TEST_F(Editing, WritesChangedColumnsOnlyAndNoticesOtherHands) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    sql("UPDATE Person SET Comment = 'theirs' WHERE ID = 1");
    rows.setValue(u"Seq"_s, 7);
    rows.update();
    EXPECT_EQ(stored("SELECT Seq || Comment FROM Person WHERE ID = 1"), u"7theirs"_s);
    rows.setValue(u"Comment"_s, u"mine"_s);
    EXPECT_EQ(errorOf([&] { rows.update(); }), -2147217864);
    EXPECT_EQ(errorOf([&] { rows.moveNext(); }), -2147217864);
    EXPECT_EQ(rows.absolutePosition(), 1);
    EXPECT_EQ(rows.value(u"Comment"_s), u"mine"_s) << "the pending value stands";
    sql("UPDATE Person SET Comment = NULL WHERE ID = 1");
    rows.update();
    EXPECT_EQ(stored("SELECT Comment FROM Person WHERE ID = 1"), u"mine"_s);
}

TEST_F(Editing, AChangeOfCaseAloneIsAConflictToo) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    sql("UPDATE Person SET LegalName = 'a' WHERE ID = 1");
    rows.setValue(u"LegalName"_s, u"Ann"_s);
    EXPECT_EQ(errorOf([&] { rows.update(); }), -2147217864);
}

TEST_F(Editing, TextsThatAreNoPlainUtf8CompareAsTheyStand) {
    sql("UPDATE Person SET LegalName = CAST(X'EFBBBF41' AS TEXT) WHERE ID = 1;"
        "UPDATE Person SET LegalName = CAST(X'42FF43C3' AS TEXT) WHERE ID = 2;"
        "UPDATE Person SET LegalName = CAST(X'EDA080F09F9880' AS TEXT) WHERE ID = 3");
    Recordset rows(Opening::Screen);
    Recordset found(Opening::Screen);
    open(rows, "Select * from Person Order By ID");
    for (int id = 1; !rows.eof(); ++id, rows.moveNext()) {
        const QString name = rows.value(u"LegalName"_s).toString();
        found.open(u"Select ID from Person where LegalName = '"_s + name + u"'"_s, connection_);
        EXPECT_EQ(found.value(u"ID"_s).toInt(), id);
        found.close();
        rows.setValue(u"LegalName"_s, QString(name + u"é"_s));
        rows.update();
    }
    EXPECT_EQ(stored("SELECT group_concat(hex(LegalName)) FROM Person WHERE ID = 1"), u"EFBBBF41C3A9"_s);
    // Written anew, what isn't text is none any more.
    EXPECT_EQ(stored("SELECT hex(LegalName) FROM Person WHERE ID = 2"), u"423F433FC3A9"_s);
    EXPECT_EQ(stored("SELECT hex(LegalName) FROM Person WHERE ID = 3"), u"3F3F3FF09F9880C3A9"_s);
}

TEST_F(Editing, SnapshotOutlivesWhatOtherStatementsDo) {
    Recordset rows(Opening::Screen);
    Recordset other(Opening::Screen);
    Recordset third(Opening::Screen);
    open(rows, "Select * from Person Order By Seq");
    other.open(u"Update Person Set Seq = Seq + 10, LegalName = 'Z' Where ID = 2"_s, connection_);
    other.open(u"Delete from Person Where ID = 3"_s, connection_);
    open(third, "Select * from Person");
    third.deleteCurrent();
    QString seen;
    for (; !rows.eof(); rows.moveNext())
        seen += rows.value(u"LegalName"_s).toString() + rows.value(u"Seq"_s).toString();
    EXPECT_EQ(seen, u"A1B2C3"_s);
    EXPECT_EQ(rows.recordCount(), 3);
    rows.moveLast();
    EXPECT_EQ(errorOf([&] { rows.deleteCurrent(); }), -2147217864);
    rows.setValue(u"Seq"_s, 1);
    EXPECT_EQ(errorOf([&] { rows.update(); }), -2147217864);
    rows.cancelUpdate();
    rows.requery();
    EXPECT_EQ(rows.recordCount(), 1);
    EXPECT_EQ(rows.value(u"LegalName"_s), u"Z"_s);
}

TEST_F(Editing, NumberGivenAgainIsAnotherRow) {
    sql("CREATE TABLE Plain (Name TEXT(9)); INSERT INTO Plain VALUES ('old')");
    Recordset rows(Opening::Screen);
    Recordset other(Opening::Screen);
    open(rows, "Select * from Plain");
    other.open(u"Delete from Plain"_s, connection_);
    rows.addNew();
    rows.setValue(u"Name"_s, u"new"_s);
    rows.update();
    EXPECT_EQ(rows.value(u"Name"_s), u"new"_s);
    rows.moveFirst();
    EXPECT_EQ(rows.value(u"Name"_s), u"old"_s);
    EXPECT_EQ(errorOf([&] { rows.deleteCurrent(); }), -2147217864);
    EXPECT_EQ(stored("SELECT Name FROM Plain"), u"new"_s);
}

TEST_F(Editing, OwnWritesShowInARowPutAside) {
    Recordset rows(Opening::Screen);
    Recordset other(Opening::Screen);
    open(rows, "Select * from Person");
    other.open(u"Update Person Set Seq = 50"_s, connection_);
    rows.setValue(u"LegalName"_s, u"New"_s);
    rows.moveNext();
    rows.moveFirst();
    EXPECT_EQ(rows.value(u"LegalName"_s), u"New"_s);
    EXPECT_EQ(rows.value(u"Seq"_s), 1);
}

TEST_F(Editing, JoinWritesTheTableThatItShows) {
    Recordset rows(Opening::Screen);
    open(rows, "SELECT Pet.* FROM Person INNER JOIN Pet ON Person.ID = Pet.PersonID ORDER BY Person.Seq, Pet.ID");
    EXPECT_EQ(rows.recordCount(), 3);
    EXPECT_EQ(rows.value(u"Name"_s), u"Tom"_s);
    rows.setValue(u"Name"_s, u"Tim"_s);
    rows.addNew();
    rows.setValue(u"Name"_s, u"Owl"_s);
    rows.setValue(u"PersonID"_s, 77);
    rows.updateBatch();
    EXPECT_EQ(rows.recordCount(), 4);
    rows.requery();
    EXPECT_EQ(rows.recordCount(), 3) << "without its owner the new row isn't selected";
    EXPECT_EQ(rows.value(u"Name"_s), u"Tim"_s);
    rows.deleteCurrent();
    EXPECT_EQ(stored("SELECT count(*) FROM Pet"), u"4"_s);
    EXPECT_EQ(stored("SELECT count(*) FROM Person"), u"3"_s);
}

struct Shape {
    const char* statement;
    bool isWritable;
    const char* values;  ///< of the first column, row by row
};

std::ostream& operator<<(std::ostream& out, const Shape& shape) {
    return out << shape.statement;
}

class Shapes : public Editing, public testing::WithParamInterface<Shape> {};

TEST_P(Shapes, AreReadAndWrittenWhereRowsHaveAKey) {
    sql("CREATE INDEX byName ON Pet(Name); CREATE VIEW Tame AS SELECT * FROM Pet WHERE PersonID < 9;");
    Recordset rows(Opening::Screen);
    open(rows, GetParam().statement);
    QString values;
    for (; !rows.eof(); rows.moveNext())
        values += rows.value(rows.fieldNames().front()).toString() + u' ';
    EXPECT_EQ(values.trimmed().toStdString(), GetParam().values);
    EXPECT_EQ(errorOf([&] { rows.addNew(); }), GetParam().isWritable ? 0 : 3251);
}

const Shape shapes[] = {
    {"Select * from Pet", true, "1 2 3 4"},
    {"select ID from pet;", true, "1 2 3 4"},
    {"Select Name, ID from Pet", true, "Rex Tom Ada Stray"},
    {"Select Name from Pet order by Name", true, "Ada Rex Stray Tom"},
    {"Select Name as n from Pet order by n Desc", true, "Tom Stray Rex Ada"},
    {"Select [Name], ID from [Pet] order by 1", true, "Ada Rex Stray Tom"},
    {"Select p.Name from Pet as p where p.ID in (Select ID from Person) order by p.ID", true, "Rex Tom Ada"},
    {"Select * from Pet order by ID Desc Limit 2", true, "4 3"},
    {"SELECT Pet.* FROM Person INNER JOIN Pet ON Person.ID = Pet.PersonID ORDER BY Name, ID", true, "3 1 2"},
    {"SELECT b.* FROM Pet a INNER JOIN Pet b ON a.ID = b.ID + 1", false, "1 2 3"},
    {"SELECT Person.* FROM Pet LEFT JOIN Person ON Person.ID = Pet.PersonID ORDER BY Pet.ID", false, "2 1 1"},
    {"SELECT Pet.Name, Person.LegalName FROM Person RIGHT JOIN Pet ON Person.ID = Pet.PersonID ORDER BY Pet.ID", false,
     "Rex Tom Ada Stray"},
    {"SELECT Pet.ID, b.LegalName FROM Person b RIGHT JOIN (Person a RIGHT JOIN Pet ON a.ID = Pet.PersonID) ON b.ID = "
     "Pet.PersonID ORDER BY Pet.ID",
     false, "1 2 3 4"},
    {"Select * from Tame", false, "1 2 3"},
    {"Select Distinct PersonID from Pet order by PersonID", false, "1 2 9"},
    {"Select PersonID, Count(*) as n from Pet Group By PersonID", false, "1 2 9"},
    {"Select Max(ID) as m from Pet", false, "4"},
    {"Select Name || '!' as loud from Pet where ID = 1", false, "Rex!"},
};

INSTANTIATE_TEST_SUITE_P(Statements, Shapes, testing::ValuesIn(shapes));

TEST_F(Editing, ActionStatementsLeaveTheRecordsetClosed) {
    Recordset rows(Opening::Screen);
    rows.open(u"Update Person Set Seq = Seq+1 Where Seq >= 2"_s, connection_);
    EXPECT_FALSE(rows.isOpen());
    EXPECT_EQ(stored("SELECT group_concat(Seq) FROM Person"), u"1,3,4"_s);
    rows.open(u"Delete from Person where ID = 99"_s, connection_);
    EXPECT_FALSE(rows.isOpen());
    EXPECT_EQ(errorOf([&] { rows.moveNext(); }), 3704);
    EXPECT_EQ(errorOf([&] { rows.close(); }), 3704);
}

TEST_F(Editing, FailedWriteKeepsWhatIsPending) {
    sql("CREATE UNIQUE INDEX oneName ON Person(LegalName)");
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person Order By ID");
    rows.addNew();
    rows.setValue(u"LegalName"_s, u"b"_s);
    EXPECT_EQ(errorOf([&] { rows.update(); }), -2147217873);
    EXPECT_EQ(rows.editMode(), EditMode::Add);
    EXPECT_EQ(errorOf([&] { rows.moveFirst(); }), -2147217873);
    EXPECT_EQ(rows.absolutePosition(), 4);
    rows.setValue(u"LegalName"_s, u"D"_s);
    rows.update();
    EXPECT_EQ(stored("SELECT group_concat(LegalName) FROM Person"), u"A,B,C,D"_s);
}

TEST_F(Editing, ClosingTheConnectionDropsPendingChanges) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    rows.setValue(u"Seq"_s, 99);
    connection_.close();
    EXPECT_FALSE(rows.isOpen());
    EXPECT_EQ(errorOf([&] { open(rows, "Select * from Person"); }), 3709);
    EXPECT_EQ(stored("SELECT max(Seq) FROM Person"), u"3"_s);
}

TEST_F(Editing, KnowsItsColumns) {
    Recordset rows(Opening::Screen);
    open(rows, "Select * from Person");
    EXPECT_EQ(errorOf([&] { (void)rows.value(u"Nobody"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { open(rows, "Select * from Person"); }), 3705);
    EXPECT_EQ(rows.columnKind(u"ID"_s), ColumnKind::Counter);
    EXPECT_EQ(rows.columnKind(u"legalname"_s), ColumnKind::Text);
    EXPECT_EQ(rows.columnKind(u"Comment"_s), ColumnKind::Memo);
    EXPECT_EQ(rows.columnKind(u"Born"_s), ColumnKind::Date);
    EXPECT_EQ(rows.columnKind(u"IsMinor"_s), ColumnKind::YesNo);
    EXPECT_EQ(rows.columnKind(u"Worth"_s), ColumnKind::Number);
    EXPECT_EQ(rows.value(u"IsMinor"_s), QVariant(false));
    rows.setValue(u"Order"_s, u"x"_s);
    rows.update();
    EXPECT_EQ(stored("SELECT \"Order\" FROM Person"), u"x"_s) << "a reserved word as a column";
}

}  // namespace
