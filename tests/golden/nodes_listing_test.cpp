#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

#include "data/tables.h"
#include "screens/catalogue/catalogue.h"
#include "tests/golden/listing.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace golden {

namespace {

constexpr int withData = 2;
constexpr int mostTypes = 4;

struct Node {
    QString key, text, parent;
    bool isBranch = false;
};

/// Finds out by trying what each node's picture goes by, what a click on it opens, and what must be there for that.
class NodesListing : public support::Household {
protected:
    NodesListing() { addMembers({u"Ann"_s, u"Bob"_s}); }

    void startWith(const QString& selection) {
        user.start();
        choose(selection);
        const QJsonArray all = user.tree()["nodes"_L1].toArray();
        for (const QJsonValue& node : all) {
            const int parent = node["parent"_L1].toInt();
            if (parent > 0) nodes_[parent - 1].isBranch = true;
            nodes_.push_back({node["key"_L1].toString(), node["text"_L1].toString(),
                              parent > 0 ? nodes_[parent - 1].key : QString(), false});
        }
    }
    /// Closes all windows and gives every node its picture anew.
    void choose(const QString& selection) { user.pick(u"MDIHost.cbPerson"_s, selection); }

    bool hasColumn(const QString& table, const QString& column) {
        return cell(u"SELECT Count(*) FROM pragma_table_info('%1') WHERE name = '%2'"_s.arg(table, column)) == u"1"_s;
    }
    bool isShared(const QString& table) { return table == u"Obligations"_s || table == u"AlimonyChildSupport"_s; }
    /// Some statements as one, without waiting for the disk.
    void change(const QString& statements) { exec(u"PRAGMA synchronous = OFF; BEGIN; %1; COMMIT"_s.arg(statements)); }
    /// A row of each type that the table can have.
    void addRow(const QString& table, int owner) {
        for (int type = 1; type <= (isShared(table) ? mostTypes : 1); ++type) {
            QStringList columns;
            QStringList values;
            if (hasColumn(table, u"PersonID"_s)) columns << u"PersonID"_s, values << QString::number(owner);
            if (isShared(table)) columns << u"Type"_s, values << QString::number(type);
            change(columns.isEmpty()
                       ? u"INSERT INTO %1 DEFAULT VALUES"_s.arg(table)
                       : u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, columns.join(u','), values.join(u',')));
        }
    }
    static QStringList categoryTables() {
        static const QSet<QString> others{u"Person"_s, u"LUStates"_s, u"Attachments"_s, u"CoverPage"_s};
        QStringList names;
        for (const data::Table& table : data::allTables()) {
            if (!others.contains(table.name)) names << table.name;
        }
        return names;
    }

    QSet<QString> lit() {
        QSet<QString> keys;
        const QJsonArray all = user.tree()["nodes"_L1].toArray();
        for (const QJsonValue& node : all) {
            if (node["image"_L1].toInt() == withData) keys.insert(node["key"_L1].toString());
        }
        return keys;
    }

    bool showsLockedBoxes() {
        const QJsonArray controls = user.form()["controls"_L1].toArray();
        return std::ranges::any_of(controls, [](const QJsonValue& control) {
            return control["name"_L1] == u"txtFields(1)"_s && control["locked"_L1].toBool();
        });
    }
    /// What a click opens: the name of a window or dialog, which is closed again; and whether its boxes are locked.
    QString opened(const QString& key) {
        openNode(key);
        const QString window = activeWindow();
        if (user.dialog().isEmpty()) {
            const QString access = showsLockedBoxes() ? u" locked"_s : QString();
            if (window == u"frmKinbook"_s)
                choose(u"Ann"_s);
            else
                user.click(u"cmdClose"_s);
            return window + access;
        }
        const QString name = user.dialog()["name"_L1].toString();
        user.click(key == u"SecurityInfo"_s || key == u"CategoryListHelp"_s ? u"cmdOK"_s : u"cmdCancel"_s);
        return name;
    }
    /// The table of a window, as its record screen or the node's picture has it.
    QString tableOf(const QString& window, const QString& pictured) {
        const screens::ScreenDefinition* screen = screens::screenDefinition(window);
        return screen ? QString(screen->table) : pictured;
    }
    /// The rows without which a read-only session doesn't open the window.
    QString counted(const QString& key, const QString& table) {
        const int types = isShared(table) ? mostTypes : 1;
        QStringList found;
        for (int type = 1; type <= types; ++type) {
            const QString rows = types > 1 ? u" Where Type = %1"_s.arg(type) : QString();
            change(u"CREATE TABLE Kept AS SELECT * FROM %1; DELETE FROM %1%2"_s.arg(table, rows));
            openNode(key);
            // A window that opens all the same begins an add, which is refused in a box of its own.
            if (boxText().startsWith(u"This screen cannot be accessed"_s)) found << table + rows;
            if (!boxTitle().isEmpty()) user.answer(u"OK"_s);
            if (activeWindow() != u"frmKinbook"_s)
                user.click(isVisible(u"cmdClose"_s) ? u"cmdClose"_s : u"cmdCancel"_s);
            change(u"DELETE FROM %1; INSERT INTO %1 SELECT * FROM Kept; DROP TABLE Kept"_s.arg(table));
        }
        return found.join(u" or "_s);
    }

    std::vector<Node> nodes_;
};

}  // namespace

TEST_F(NodesListing, PicturesGoByTheListedTables) {
    startWith(u"Whole Family"_s);
    QMap<QString, QString> pictured{{u"Birth"_s, lit().contains(u"Birth"_s) ? u"Person"_s : QString()}};
    const QSet<QString> atFirst = lit();
    for (const QString& table : categoryTables()) {
        addRow(table, 2);
        choose(u"Whole Family"_s);
        for (const QString& key : lit() - atFirst)
            pictured[key] += table;
        change(u"DELETE FROM "_s + table);
    }
    // A branch's picture follows its children, unless it has a table of its own and is left.
    for (const QString& table : categoryTables()) {
        if (table != u"Obligations"_s) addRow(table, 2);
    }
    choose(u"Whole Family"_s);
    QStringList dark;
    for (const Node& node : nodes_) {
        if (!node.isBranch || node.parent.isEmpty()) continue;
        openNode(node.key);
        user.node(node.key == u"Security"_s ? u"In Case of Loss"_s : u"Security"_s);
        if (!lit().contains(node.key)) dark << node.key;
    }
    addRow(u"Obligations"_s, 2);
    choose(u"Whole Family"_s);
    for (const Node& node : nodes_) {
        if (node.isBranch)
            pictured[node.key] = dark.contains(node.key) && lit().contains(node.key) ? u"Obligations"_s : QString();
    }
    choose(u"Ann"_s);
    const QSet<QString> ofEverybody = lit();

    QStringList seen;
    for (const Node& node : nodes_) {
        QString line = u"%1 \"%2\""_s.arg(node.key, node.text);
        if (!node.parent.isEmpty()) line += u" under "_s + node.parent;
        const QString table = pictured.value(node.key);
        if (!table.isEmpty()) line += u", pictured by "_s + table;
        if (!node.isBranch && ofEverybody.contains(node.key) && table != u"Person"_s) line += u" of everybody"_s;
        seen << line;
    }
    EXPECT_TRUE(isAsListed(u"nodes"_s, seen));
}

TEST_F(NodesListing, ClicksOpenAndCountWhatIsListed) {
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=secret\r\nSplash=1\r\n");
    for (const QString& table : categoryTables())
        addRow(table, 1);
    startWith(u"Ann"_s);
    const QStringList pictures = listed(u"nodes"_s);
    QStringList seen;
    for (const Node& node : nodes_) {
        if (node.isBranch) continue;
        const QString outcome = opened(node.key);
        const QString window = outcome.section(u' ', 0, 0);
        QString line = u"%1 opens %2"_s.arg(node.key, outcome);
        const QString table = tableOf(window, pictures.filter(QRegularExpression(u"^%1 \""_s.arg(node.key)))
                                                  .value(0)
                                                  .section(u"pictured by "_s, 1)
                                                  .section(u' ', 0, 0));
        if (!table.isEmpty() && window != u"frmLoginPIN"_s) line += u", counts "_s + counted(node.key, table);
        seen << line;
    }
    EXPECT_TRUE(isAsListed(u"clicks on nodes"_s, seen));
}

}  // namespace golden
