#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class SequencedList : public support::Household {
protected:
    void open(const QString& node = u"AssetLiquidation"_s) {
        openFor({u"Ann Larkin"_s, u"Bob"_s}, u"Ann Larkin"_s, node);
    }
    void addRows(int count) {
        for (int i = 1; i <= count; ++i)
            exec(u"INSERT INTO AssetLiquidation (Seq, Asset) VALUES (%1, 'A%1')"_s.arg(i));
    }
    void enter(const QString& button, const QString& number, const QString& asset = {}) {
        user.click(button);
        user.fill(u"txtSequence"_s, number);
        if (!asset.isNull()) user.fill(u"txtAsset"_s, asset);
        user.click(u"cmdOK"_s);
    }
    /// "1 A1|2 A2", as the file has them in order.
    QString stored() {
        return cell(
            u"SELECT group_concat(row, '|') FROM (SELECT ifnull(Seq, '-') || ' ' || Asset AS row FROM "
            "AssetLiquidation ORDER BY Seq, ID)"_s);
    }
    int current() { return user.grid()["current"_L1].toInt(); }
};

TEST_F(SequencedList, NumbersStayWholeThroughAnyChanges) {
    open();
    std::mt19937 random(20261123);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    QStringList model;
    for (int step = 0; step < 60; ++step) {
        const int rows = static_cast<int>(model.size());
        const int what = rows == 0 ? 0 : upTo(2);
        const int number = upTo(rows + 3) - 2;
        const qsizetype place = std::max(number, 1) - 1;
        const int row = rows == 0 ? 0 : upTo(rows - 1);
        if (rows > 0) user.select(u"grdDataGrid"_s, row);
        if (what == 0) {
            model.insert(place, u"N%1"_s.arg(step));
            enter(u"cmdAdd"_s, QString::number(number), u"N%1"_s.arg(step));
            EXPECT_EQ(current(), rows);
        } else if (what == 1) {
            model.move(row, std::min(place, model.size() - 1));
            enter(u"cmdEdit"_s, QString::number(number));
            EXPECT_EQ(current(), 0);
        } else {
            model.removeAt(row);
            deleteRecord();
            EXPECT_EQ(current(), std::min(1, rows - 2));
        }
        QStringList expected;
        for (qsizetype i = 0; i < model.size(); ++i)
            expected.append(u"%1 %2"_s.arg(i + 1).arg(model[i]));
        ASSERT_EQ(stored(), model.isEmpty() ? u"null"_s : expected.join(u'|')) << "step " << step;
    }
}

TEST_F(SequencedList, WhatANumberMayBe) {
    struct Case {
        QString typed;
        QString box;      // of the dialog, which then stays
        QString failure;  // of the save, behind which the dialog comes back
        QString rows;
    };
    const QString asBefore = u"1 A1|2 A2|3 A3|4 A4|5 A5|6 A6|7 A7|8 A8|9 A9"_s;
    const Case cases[] = {
        {u""_s, u"Invalid Number Format"_s, {}, asBefore},
        {u"abc"_s, u"Invalid Number Format"_s, {}, asBefore},
        {u"1,000"_s, u"Sequence Number Too Large"_s, {}, asBefore},
        {u"99999"_s, u"Sequence Number Too Large"_s, {}, asBefore},
        {u"1e3"_s, u"Sequence Number Too Large"_s, {}, asBefore},
        {u"11"_s, u"Sequence Number Too Large"_s, {}, asBefore},
        {u"$5"_s, {}, u"Update Error"_s, asBefore},
        {u"0,5"_s, {}, u"Update Error"_s, asBefore},
        {u"&H5"_s, {}, u"Update Error"_s, asBefore},
        {u"3"_s, {}, {}, asBefore},
        {u"-3"_s, {}, {}, u"1 A3|2 A1|3 A2|4 A4|5 A5|6 A6|7 A7|8 A8|9 A9"_s},
        {u"10"_s, {}, {}, u"1 A1|2 A2|3 A4|4 A5|5 A6|6 A7|7 A8|8 A9|9 A3"_s},
    };
    addRows(9);
    open();
    for (const Case& sample : cases) {
        SCOPED_TRACE(sample.typed.toStdString());
        exec(u"UPDATE AssetLiquidation SET Seq = ID"_s);
        openNode(u"AssetLiquidation"_s);
        user.click(u"cmdClose"_s);
        openNode(u"AssetLiquidation"_s);
        user.select(u"grdDataGrid"_s, 2);
        enter(u"cmdEdit"_s, sample.typed);
        EXPECT_EQ(boxTitle(), sample.box.isEmpty() ? sample.failure : sample.box);
        if (!boxTitle().isEmpty()) user.answer(u"OK"_s);
        if (!sample.box.isEmpty()) {
            EXPECT_EQ(focus(), u"txtSequence"_s);
            EXPECT_EQ(selected(u"txtSequence"_s), sample.typed.size());
        }
        if (!sample.box.isEmpty() || !sample.failure.isEmpty()) {
            EXPECT_EQ(user.text(u"txtSequence"_s), sample.typed);
            user.click(u"cmdCancel"_s);
        }
        EXPECT_EQ(stored(), sample.rows);
        EXPECT_EQ(current(), 0);
        EXPECT_EQ(forms().last(), u"frmAssetLiquidation"_s);
    }
}

TEST_F(SequencedList, AnInterruptedSaveIsRepairedByTheNextOne) {
    addRows(4);
    exec(
        u"CREATE TRIGGER refusal BEFORE UPDATE OF Asset ON AssetLiquidation WHEN new.Asset = 'bad' BEGIN SELECT "
        "RAISE(ABORT, 'refused'); END"_s);
    open();
    enter(u"cmdEdit"_s, u"3"_s, u"bad"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(stored(), u"0 A1|1 A2|2 A3|4 A4"_s);
    user.click(u"cmdCancel"_s);
    enter(u"cmdEdit"_s, u"1"_s, u"good"_s);
    EXPECT_EQ(stored(), u"1 good|2 A2|3 A3|4 A4"_s);
    // A row without a number is passed over, but counted.
    exec(u"UPDATE AssetLiquidation SET Seq = NULL WHERE Asset = 'A4'"_s);
    user.select(u"grdDataGrid"_s, 1);
    enter(u"cmdEdit"_s, u"2"_s);
    EXPECT_EQ(stored(), u"- A4|2 good|3 A2|4 A3"_s);
}

TEST_F(SequencedList, AnEntryThatCouldntBeSavedIsSavedByTheNextOK) {
    addRows(4);
    exec(
        u"CREATE TRIGGER refusal BEFORE UPDATE OF Asset ON AssetLiquidation WHEN new.Asset LIKE 'bad%' BEGIN SELECT "
        "RAISE(ABORT, 'refused'); END; CREATE TRIGGER addition BEFORE INSERT ON AssetLiquidation WHEN new.Asset LIKE "
        "'bad%' BEGIN SELECT RAISE(ABORT, 'refused'); END"_s);
    open();
    const auto failThenSave = [&](const QString& button, int row, const QString& first, const QString& then) {
        user.select(u"grdDataGrid"_s, row);
        enter(button, first, u"bad & worse"_s);
        EXPECT_EQ(dismissBox(), u"Update Error"_s);
        EXPECT_EQ(user.text(u"txtAsset"_s), u"bad & worse"_s);
        user.fill(u"txtAsset"_s, u"N"_s);
        user.fill(u"txtSequence"_s, then);
        user.click(u"cmdOK"_s);
        EXPECT_EQ(activeWindow(), u"frmAssetLiquidation"_s);
        const QString rows = stored();
        exec(u"DELETE FROM AssetLiquidation WHERE ID > 4; UPDATE AssetLiquidation SET Seq = ID, Asset = 'A' || ID"_s);
        user.click(u"cmdClose"_s);
        openNode(u"AssetLiquidation"_s);
        return rows;
    };
    EXPECT_EQ(failThenSave(u"cmdAdd"_s, 0, u"2"_s, u"2"_s), u"1 A1|2 N|3 A2|4 A3|5 A4"_s);
    EXPECT_EQ(failThenSave(u"cmdAdd"_s, 0, u"2"_s, u"4"_s), u"1 A1|2 A2|3 A3|4 N|5 A4"_s);
    EXPECT_EQ(failThenSave(u"cmdEdit"_s, 0, u"3"_s, u"3"_s), u"1 A2|2 A3|3 N|4 A4"_s);
    EXPECT_EQ(failThenSave(u"cmdEdit"_s, 0, u"3"_s, u"1"_s), u"1 N|2 A2|3 A3|4 A4"_s);
    EXPECT_EQ(failThenSave(u"cmdEdit"_s, 3, u"1"_s, u"2"_s), u"1 A1|2 N|3 A2|4 A3"_s);

    // What fails behind the write of the row must not have it written twice.
    exec(
        u"CREATE TRIGGER renumbering BEFORE UPDATE OF Seq ON AssetLiquidation WHEN new.Seq = 2 BEGIN SELECT "
        "RAISE(ABORT, 'refused'); END"_s);
    exec(u"UPDATE AssetLiquidation SET Seq = Seq + 5 WHERE Seq > 1"_s);
    enter(u"cmdAdd"_s, u"10"_s, u"last"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(forms().last(), u"frmAssetLiquidation"_s);
    EXPECT_EQ(stored(), u"1 A1|7 A2|8 A3|9 A4|10 last"_s);
}

TEST_F(SequencedList, AnAssetKeepsItsAmpersandsAndNeedsAName) {
    open();
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(boxText(), u"There are no entries to edit."_s);
    user.answer(u"OK"_s);
    enter(u"cmdAdd"_s, u"500"_s, u""_s);
    EXPECT_EQ(dismissBox(), u"Invalid Asset Information"_s);
    user.fill(u"txtAsset"_s, u"Tools & Dies, A&B"_s);
    EXPECT_FALSE(treeEnabled());
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(treeEnabled());
    EXPECT_EQ(stored(), u"1 Tools && Dies, A&B"_s);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(user.text(u"txtAsset"_s), u"Tools & Dies, A&B"_s);
    user.click(u"cmdCancel"_s);
    // After an add the list can be closed, but not left for another category.
    user.node(u"Financial Information"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

TEST_F(SequencedList, TheFamilyIsOnlyPutInOrder) {
    open(u"Birth"_s);
    exec(u"UPDATE Person SET LegalName = 'Ann && Larkin', SocSecNum = '111-22-3333' WHERE ID = 1"_s);
    user.click(u"cmdClose"_s);
    user.menu(u"mFamilySequence"_s);
    EXPECT_FALSE(isVisible(u"cmdAdd"_s));
    EXPECT_EQ(focus(), u"grdDataGrid"_s);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(selected(u"txtSequence"_s), 1);
    EXPECT_FALSE(isEnabled(u"txtLegalName"_s));
    user.fill(u"txtSequence"_s, u"2"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(Seq || LegalName || ifnull(SocSecNum, '-'), '|') FROM (SELECT * FROM Person "
                   "ORDER BY Seq)"_s),
              u"1Bob-|2Ann & Larkin111-22-3333"_s);
    EXPECT_EQ(status(), u"Record: 1"_s);
    user.key(u"End"_s);
    EXPECT_EQ(status(), u"Record: 2"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(user.state()["beeps"_L1].toInt(), 1);
    EXPECT_EQ(current(), 1);
}

TEST_F(SequencedList, AListIsSavedAndPrintedWithItsVisibleColumns) {
    exec(
        u"INSERT INTO AssetLiquidation (Seq, Asset, Directions) VALUES (1, 'Tools && Dies', 'Sell'), (2, 'Car\tred', "
        "'To' || char(13) || char(10) || 'Bob')"_s);
    open();
    user.menu(u"mSave"_s);
    user.choose(path(u"list.txt"_s));
    const QString text = QString::fromLatin1(bytesOf(u"list.txt"_s));
    EXPECT_TRUE(text.startsWith(u"          The Asset Liquidation Information Listing As Of "_s)) << text.toStdString();
    EXPECT_FALSE(text.contains(u"ID"_s));
    EXPECT_TRUE(text.contains(u"          1     Tools &  Dies"_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Car red"_s));
    EXPECT_EQ(status(), u"Record: 1"_s);
    user.setPrinter(path(u"list.pdf"_s));
    user.tool(u"tbPrint"_s);
    ASSERT_EQ(user.jobs().size(), 1);
}

TEST_F(SequencedList, AReadOnlySessionLooksButChangesNothing) {
    addRows(2);
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=\xcf\r\nSplash=1\r\n");
    open();
    for (const QString& button : {u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s}) {
        user.click(button);
        EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    }
    user.click(u"cmdNext"_s);
    EXPECT_EQ(status(), u"Record: 2"_s);
}

}  // namespace
