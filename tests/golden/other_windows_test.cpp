#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <cmath>
#include <numeric>

#include "tests/golden/listing.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace golden {

namespace {

constexpr double pixelShare = 0.006;
constexpr double hiddenShare = 0.01;

/// Lists with their dialogs, and the dialogs that stand alone.
class OtherWindows : public support::Household {
protected:
    /// The inputs of the topmost form from the top to the bottom.
    QStringList inputs() {
        QStringList lines;
        const QJsonArray controls = user.form()["controls"_L1].toArray();
        for (const QJsonValue& control : controls) {
            const QString type = control["type"_L1].toString();
            if (type != u"TextBox"_s && type != u"ComboBox"_s) continue;
            QString line = u"input %1 \"%2\""_s.arg(control["name"_L1].toString(), control["label"_L1].toString());
            if (!control["enabled"_L1].toBool()) line += u", disabled"_s;
            if (control["masked"_L1].toBool()) line += u", hidden as typed"_s;
            lines << line;
        }
        return lines;
    }
    QString titleOfForm() { return u"title \"%1\""_s.arg(user.form()["caption"_L1].toString()); }

    /// The shares of the grid's width that are listed for the window's columns.
    static QList<double> listedShares(const QString& window) {
        static const QRegularExpression share(u", (\\S+) of the width"_s);
        QList<double> shares;
        for (const QString& line : listed(u"window "_s + window)) {
            if (line.startsWith(u"column "_s)) shares << share.match(line).captured(1).toDouble();
        }
        return shares;
    }
    /// A share as it is listed, where the width shown agrees with it to the pixel.
    static QString shareText(double measured, double listed) {
        if (measured < hiddenShare) return u"hidden"_s;
        const double share = std::abs(measured - listed) < pixelShare ? listed : measured;
        return u"%1 of the width"_s.arg(share, 0, 'f', 3);
    }
    QStringList columnsOfGrid() {
        const QList<double> shares = listedShares(activeWindow());
        const QJsonArray columns = user.grid()["columns"_L1].toArray();
        double total = 0;
        for (const QJsonValue& column : columns)
            total += column["width"_L1].toDouble();
        const double scale = std::accumulate(shares.begin(), shares.end(), 0.0) / total;
        QStringList lines;
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const QString width = shareText(columns[i]["width"_L1].toDouble() * scale, shares.value(i));
            lines << u"column %1 %2, %3"_s.arg(i).arg(columns[i]["name"_L1].toString(), width);
        }
        return lines;
    }

    /// The list that has come up, with the dialog that its first row is edited in.
    void tellList() {
        const QString window = activeWindow();
        QStringList seen{titleOfForm()};
        const QString key = attachKey();
        if (key.contains(u"Rec_"_s)) seen << u"attachments \"%1\""_s.arg(key.section(u'_', 0, 0) + u'_');
        seen << columnsOfGrid();
        user.click(u"cmdEdit"_s);
        seen << u"dialog %1 \"%2\""_s.arg(user.form()["name"_L1].toString(), user.form()["caption"_L1].toString());
        seen << inputs();
        user.click(u"cmdCancel"_s);
        user.click(u"cmdClose"_s);
        EXPECT_TRUE(isAsListed(u"window "_s + window, seen));
    }
    void tellDialog() {
        const QString window = user.form()["name"_L1].toString();
        EXPECT_TRUE(isAsListed(u"window "_s + window, QStringList{titleOfForm()} + inputs()));
        user.click(u"cmdCancel"_s);
    }
};

}  // namespace

TEST_F(OtherWindows, ListsAndTheirDialogs) {
    addMembers({u"Ann"_s});
    exec(u"INSERT INTO AssetLiquidation (Seq, Asset) VALUES (1, 'Boat')"_s);
    exec(u"INSERT INTO WhoGetsWhat (Item) VALUES ('Ring')"_s);
    exec(u"INSERT INTO MedicalLog (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO PIN_Password (PersonID, Seq, Account, Encrypted) VALUES (1, 1, 'Bank', 'PT')"_s);
    startFor(u"Whole Family"_s);
    // The list stands in the host's own menu, which shows when no window is open.
    user.click(u"cmdClose"_s);
    user.menu(u"mFamilySequence"_s);
    tellList();
    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    for (const QString& node : {u"AssetLiquidation"_s, u"WhoGetsWhat"_s, u"MedicalLog"_s}) {
        openNode(node);
        tellList();
    }
    user.pick(u"MDIHost.cbPerson"_s, u"Ann"_s);
    openNode(u"PINsPasswords"_s);
    user.click(u"cmdOK"_s);
    tellList();
}

TEST_F(OtherWindows, ComingDates) {
    user.start();
    user.menu(u"mComing"_s);
    EXPECT_TRUE(isAsListed(u"window frmComing"_s, QStringList{titleOfForm()} + columnsOfGrid() + inputs()));
}

TEST_F(OtherWindows, DialogsOfTheSecurityCategory) {
    addMembers({u"Ann"_s});
    startFor(u"Ann"_s);
    for (const QString& node : {u"LogIn"_s, u"ChangeMainPassword"_s, u"ChangePINPassword"_s, u"PINsPasswords"_s}) {
        openNode(node);
        tellDialog();
    }
}

TEST_F(OtherWindows, AttachmentDialog) {
    addMembers({u"Ann"_s});
    startFor(u"Ann"_s);
    user.tool(u"tbAttach"_s);
    QStringList seen{titleOfForm()};
    const QJsonArray controls = user.form()["controls"_L1].toArray();
    for (const QJsonValue& control : controls) {
        if (control["type"_L1].toString() != u"CommandButton"_s) continue;
        QString line = u"button %1 \"%2\""_s.arg(control["name"_L1].toString(), control["text"_L1].toString());
        const QString hint = control["tooltip"_L1].toString();
        if (!hint.isEmpty()) line += u", hint \"%1\""_s.arg(hint);
        seen << line;
    }
    const QJsonArray columns = user.grid()["columns"_L1].toArray();
    for (qsizetype i = 0; i < columns.size(); ++i)
        seen << u"column %1 %2"_s.arg(i).arg(columns[i]["name"_L1].toString());
    EXPECT_TRUE(isAsListed(u"window frmAttach"_s, seen));
}

}  // namespace golden
