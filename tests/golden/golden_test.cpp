#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRegularExpression>
#include <algorithm>

#include "data/tables.h"
#include "screens/catalogue/catalogue.h"
#include "tests/golden/listing.h"
#include "tests/golden/told_window.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;
using Controls = QMap<QString, QJsonObject>;

namespace golden {

namespace {

const QString wholeFamily = u"Whole Family"_s;

QString box(int index) {
    return u"txtFields(%1)"_s.arg(index);
}

/// Opens every record window and tells all that a user can see of it, box by box.
///
/// The family's only member has no name, so that a save is refused in every window and says so.
class GoldenListing : public support::Household {
protected:
    GoldenListing() { exec(u"INSERT INTO Person (LegalName, Seq, Sex) VALUES ('', 1, 'F')"_s); }

    void startFamily() { startFor(wholeFamily); }

    /// A message box's title and text, with the caption that it quotes left open; it is answered.
    QString takeBox(const QString& button = u"OK"_s) {
        QString told = u"\"%1\": \"%2\""_s.arg(boxTitle(), boxText());
        if (!boxTitle().isEmpty()) user.answer(button);
        return told.replace(u"\r\n"_s, u"\\n"_s);
    }

    // The parts of a window's description -------------------------------------------------------------------------

    QString refusedSave() {
        user.click(u"cmdUpdate"_s);
        return u"save without a name: "_s + takeBox();
    }
    QString deleteQuestion() {
        user.click(u"cmdDelete"_s);
        const QString told = u"delete: \"%1\""_s.arg(boxText());
        user.answer(u"No"_s);
        return told;
    }

    QString chosenIn(const Controls& controls, const QString& shown) {
        for (auto control = controls.begin(); control != controls.end(); ++control) {
            if (!control.key().startsWith(u"cbFields"_s) || control->value(u"text"_s) != shown) continue;
            QStringList items = control->value(u"items"_s).toVariant().toStringList();
            if (items == states()) return u", chosen in %1: states"_s.arg(control.key());
            for (QString& item : items)
                item = u'"' + item + u'"';
            return u", chosen in %1: %2"_s.arg(control.key(), items.join(u", "_s));
        }
        return {};
    }
    QStringList states() {
        return cell(u"SELECT group_concat(Name, '|') FROM (SELECT Name FROM LUStates ORDER BY Name)"_s).split(u'|');
    }

    /// The check that a box makes before it lets the focus go, and its words for the heading of all checks.
    QString checkOf(int index, const QJsonObject& shown) {
        if (!shown["visible"_L1].toBool() || shown["locked"_L1].toBool()) return {};
        user.fill(box(index), u"x"_s);
        user.key(u"Tab"_s);
        if (boxTitle().isEmpty()) return {};
        const QString label = shown["label"_L1].toString().chopped(1);
        const QString words = takeBox().replace(label, u"NAME"_s);
        for (const QString& check : listed(u"every check"_s)) {
            const QString kind = check.section(u": "_s, 0, 0);
            if (check != kind + u": "_s + words) continue;
            user.fill(box(index), kind == u"number"_s ? u"1"_s : kind == u"sex"_s ? u"F"_s : u""_s);
            user.key(u"Tab"_s);
            return u", check "_s + kind;
        }
        return u", check "_s + words;
    }

    QStringList boxesOf(const data::Table& table, const Controls& controls) {
        QStringList lines;
        for (int i = 0; controls.contains(box(i)); ++i) {
            const QJsonObject& shown = controls[box(i)];
            const QString text = shown["text"_L1].toString();
            const QString label = shown["label"_L1].toString();
            const QString column = toldColumn(table, text, shown["maxLength"_L1].toInt());
            if (i == 0 && column.startsWith(u"no column"_s) && text.isEmpty() && table.name != "Person"_L1) {
                lines << u"owner \"%1\""_s.arg(label);
                continue;
            }
            QString line = u"box %1 \"%2\" %3"_s.arg(i).arg(label, column);
            const QString hint = shown["tooltip"_L1].toString();
            if (!hint.isEmpty()) line += u", hint \"%1\""_s.arg(hint);
            if (!shown["visible"_L1].toBool()) line += chosenIn(controls, text);
            lines << line + checkOf(i, shown);
        }
        return lines;
    }

    /// The check boxes; the rows hold yes in one column after the other.
    QStringList checksOf(const data::Table& table, const Controls& controls) {
        QMap<int, QString> columns;
        for (int yes = 0; yes < yesNoColumns(table); ++yes) {
            user.click(u"cmdNext"_s);
            const Controls now = controlsOf(user.form());
            for (int i = 0; now.contains(u"chkFields(%1)"_s.arg(i)); ++i) {
                if (now[u"chkFields(%1)"_s.arg(i)]["value"_L1].toInt() != 0) columns[i] += yesNoColumn(table, yes);
            }
        }
        user.click(u"cmdFirst"_s);
        QStringList lines;
        for (int i = 0; controls.contains(u"chkFields(%1)"_s.arg(i)); ++i) {
            const QString label = controls[u"chkFields(%1)"_s.arg(i)]["text"_L1].toString();
            lines << u"check %1 \"%2\" %3"_s.arg(i).arg(label, columns.value(i, u"no column"_s));
        }
        return lines;
    }

    /// In what a window's buttons, keys and menus differ from every record window's.
    static QStringList ownControls(const QJsonObject& form) {
        const QStringList all = listed(u"every record window"_s);
        const QStringList shown = commonControls(form);
        QStringList lines;
        for (const QString& line : shown) {
            if (!all.contains(line)) lines << line;
        }
        for (const QString& line : all) {
            if (!shown.contains(line)) lines << u"without "_s + line;
        }
        return lines;
    }

    void addRows(const data::Table& table, const QString& keys, const QString& values) {
        for (int yes = -1; yes < yesNoColumns(table); ++yes) {
            const TellingRow row(table, yes);
            exec(u"INSERT INTO %1 (%2%3) VALUES (%4%5)"_s.arg(table.name, keys, row.columns(), values, row.values()));
        }
    }

    /// What a window shows of its rows; it stands on the first of those that addRows has added.
    QStringList describeRows(const data::Table& table, const QStringList& messages, const QString& title) {
        user.click(u"cmdFirst"_s);
        const QJsonObject form = user.form();
        const Controls controls = controlsOf(form);
        QStringList lines;
        if (!title.isEmpty()) lines << u"title \"%1\""_s.arg(title);
        if (controls.contains(u"lblAttachments"_s) && controls[u"lblAttachments"_s]["visible"_L1].toBool())
            lines << u"attachments \"%1\""_s.arg(attachKey().chopped(3));
        lines << u"add \"%1\""_s.arg(controls[u"cmdAdd"_s]["text"_L1].toString());
        const QStringList checks = checksOf(table, controls);
        lines << messages.value(0) << deleteQuestion() << messages.mid(1) << framesOf(controls);
        lines << boxesOf(table, controls) << checks;
        if (controls.contains(u"lblPercent"_s)) lines << u"percent sign"_s;
        lines << ownControls(form);
        return lines;
    }
    void closeChanged() {
        user.click(u"cmdClose"_s);
        if (boxTitle() == u"Close Confirmation"_s) user.answer(u"Yes"_s);
    }

    // Windows of their own ------------------------------------------------------------------------------------------

    /// The title of the failure when the window can't read its rows.
    QString failureToLoad(const QString& node, const QString& table) {
        exec(u"ALTER TABLE %1 RENAME COLUMN PersonID TO Gone"_s.arg(table));
        openNode(node);
        const QString title = dismissBox();
        exec(u"ALTER TABLE %1 RENAME COLUMN Gone TO PersonID"_s.arg(table));
        user.pick(u"MDIHost.cbPerson"_s, wholeFamily);
        return u"failure to load: \"%1\""_s.arg(title);
    }

    /// The type that a row of a shared table gets from this window.
    QString savedType(const QString& node, const data::Table& table) {
        exec(u"UPDATE Person SET LegalName = 'Ann'"_s);
        openNode(node);
        user.pick(u"cbFields(0)"_s, u"Ann"_s);
        user.click(u"cmdUpdate"_s);
        user.click(u"cmdClose"_s);
        const QString type = cell(u"SELECT Type FROM "_s + table.name);
        exec(u"DELETE FROM "_s + table.name);
        exec(u"UPDATE Person SET LegalName = ''"_s);
        return type;
    }

    /// Opens the child windows that a site offers, and tells each by the first site that has it.
    QStringList childrenOf(const data::Table& table) {
        QStringList lines;
        const Controls site = controlsOf(user.form());
        for (const QString& kind : {u"Inventory"_s, u"Improvements"_s, u"Outbuildings"_s}) {
            const auto key = site.constFind(u"tb"_s + kind);
            if (key == site.constEnd()) continue;
            const QString description = user.text(box(2));
            user.tool(key.key());
            const QString caption = user.form()["caption"_L1].toString();
            EXPECT_TRUE(caption.endsWith(description)) << caption.toStdString();
            const QString type = user.text(u"txtTypeID"_s);
            lines << u"key %1 \"%2\" and menu \"%3\": \"%4\", type %5"_s.arg(key.key(), (*key)["tooltip"_L1].toString(),
                                                                             site[u"m"_s + kind]["text"_L1].toString(),
                                                                             caption.chopped(description.size()), type);
            const bool first =
                table.name == "HomeOwned"_L1 || (table.name == "BusinessRealEstate"_L1 && kind == u"Outbuildings"_s);
            if (first) {
                describeChild(kind, key.key(), type);
            } else {
                user.click(u"cmdCancel"_s);
            }
        }
        return lines;
    }
    void describeChild(const QString& kind, const QString& key, const QString& type) {
        const QString window = activeWindow();
        const QStringList messages{refusedSave()};
        user.click(u"cmdCancel"_s);
        const data::Table& table = data::table(kind);
        addRows(table, u"TypeID, ParentID, "_s, type + u", 1, "_s);
        user.tool(key);
        EXPECT_TRUE(isAsListed(u"window "_s + window, describeRows(table, messages, {})));
        closeChanged();
    }

    void tellOwned(const QString& node) {
        const QString window = activeWindow();
        const screens::ScreenDefinition* screen = screens::screenDefinition(window);
        ASSERT_NE(screen, nullptr) << window.toStdString();
        const data::Table& table = data::table(QString(screen->table));
        QStringList messages{refusedSave()};
        user.click(u"cmdCancel"_s);
        QString keys = u"PersonID, "_s;
        QString values = u"1, "_s;
        const bool shared = screen->shared.has_value();
        QString type;
        if (shared) {
            type = savedType(node, table);
            keys += u"Type, "_s;
            values += type + u", "_s;
        }
        messages << failureToLoad(node, table.name);
        addRows(table, keys, values);
        openNode(node);
        const QString title = user.form()["caption"_L1].toString();
        const QStringList children = childrenOf(table);
        QStringList seen = describeRows(table, messages, title);
        if (shared) seen << u"type %1 on save"_s.arg(type);
        static const QRegularExpression childKey(u"^(key tb|menu m)(Inventory|Improvements|Outbuildings) "_s);
        seen.removeIf([](const QString& line) { return childKey.match(line).hasMatch(); });
        closeChanged();
        exec(u"DELETE FROM "_s + table.name);
        EXPECT_TRUE(isAsListed(u"window "_s + window, seen + children));
    }

    void tellReference(const std::function<void()>& open) {
        const QString window = activeWindow();
        const data::Table& table = data::table(QString(screens::screenDefinition(window)->table));
        const QStringList messages{refusedSave()};
        user.click(u"cmdCancel"_s);
        addRows(table, {}, {});
        open();
        const QString title = user.form()["caption"_L1].toString();
        EXPECT_TRUE(isAsListed(u"window "_s + window, describeRows(table, messages, title)));
        closeChanged();
    }
};

/// The owned screens, by the branch of the tree that leads to them.
class OwnedWindows : public GoldenListing, public testing::WithParamInterface<const char*> {};

std::string branchName(const testing::TestParamInfo<const char*>& info) {
    std::string name = info.param;
    std::erase(name, ' ');
    return name;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Branches, OwnedWindows,
                         testing::Values("Family Member Information", "EmploymentInfo", "Financial Information",
                                         "Assets", "Banking", "Investments", "RealEstate", "Insurance", "Obligations",
                                         "Medical Information", "In Case of Loss"),
                         branchName);

TEST_P(OwnedWindows, ShowWhatIsListed) {
    startFamily();
    const QJsonArray nodes = user.tree()["nodes"_L1].toArray();
    int told = 0;
    for (const QJsonValue& node : nodes) {
        const QString key = node["key"_L1].toString();
        const QString parent = nodes[node["parent"_L1].toInt() - 1]["key"_L1].toString();
        const bool again = key.endsWith(u'1') || key == u"Birth"_s;
        if (parent != QString::fromLatin1(GetParam()) || again || key == u"Doctors"_s) continue;
        openNode(key);
        if (!boxTitle().isEmpty()) {
            user.answer(u"OK"_s);
            continue;
        }
        const bool isRecord = !activeWindow().isEmpty() && screens::screenDefinition(activeWindow());
        if (!isRecord || activeWindow() == u"frmKinbook"_s) continue;
        SCOPED_TRACE(key.toStdString());
        tellOwned(key);
        if (HasFatalFailure()) return;
        ++told;
    }
    EXPECT_GT(told, 0);
}

TEST_F(GoldenListing, ThePersonScreen) {
    const data::Table& table = data::table(u"Person");
    for (int yes = -1; yes < yesNoColumns(table); ++yes) {
        if (yes >= 0) exec(u"INSERT INTO Person (LegalName) VALUES ('')"_s);
        exec(u"UPDATE Person SET %1, Seq = %2 WHERE ID = %2"_s.arg(TellingRow(table, yes).assignments()).arg(yes + 2));
    }
    startFamily();
    const QString title = user.form()["caption"_L1].toString();
    QStringList seen = describeRows(table, {u"refusal"_s}, title);
    user.fill(box(0), QString());
    user.click(u"cmdEdit"_s);
    seen.replaceInStrings(u"refusal"_s, refusedSave());
    seen.replaceInStrings(u"delete b?"_s, u"delete NAME?"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_TRUE(isAsListed(u"window frmKinbook"_s, seen));
}

TEST_F(GoldenListing, TheReferenceScreens) {
    startFamily();
    for (const QString& node : {u"Doctors"_s, u"Contacts"_s}) {
        openNode(node);
        tellReference([&] { openNode(node); });
    }
    user.menu(u"mCoverPage"_s);
    dismissBox();
    tellReference([&] { user.menu(u"mCoverPage"_s); });
}

}  // namespace golden
