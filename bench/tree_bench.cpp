// A full refresh of the category tree's pictures over a file of 100,000 rows, against the same counts in raw SQLite.

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <vector>

#include <SQLiteCpp/SQLiteCpp.h>

#include "app/category_nodes.h"
#include "app/category_tree.h"
#include "app/host_rows.h"
#include "data/template.h"
#include "platform/forms/tree_view.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 15;
constexpr double limit = 1.5;

/// 8 members with 100,000 homes between them, each row with the texts of a filled record.
void fill(const QString& path) {
    data::createTemplate(path);
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction all(file);
    for (int i = 1; i <= 8; ++i)
        file.exec("INSERT INTO Person (LegalName) VALUES ('Member " + std::to_string(i) + "')");
    SQLite::Statement insert(file,
                             "INSERT INTO HomeOwned (PersonID, Description, Addr, City, Comment) VALUES (?,?,?,?,?)");
    for (int i = 0; i < 100'000; ++i) {
        insert.bind(1, i % 8 + 1);
        for (int column = 2; column <= 5; ++column)
            insert.bind(column, std::string(50, 'x'));
        insert.exec();
        insert.reset();
    }
    all.commit();
}

template <class Routine>
double bestSeconds(const Routine& routine) {
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        routine();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
    return best;
}

std::vector<std::string> countStatements(int member) {
    std::vector<std::string> statements;
    for (const app::CategoryNode& node : app::categoryNodes()) {
        const QLatin1StringView table = node.table();
        if (table.isEmpty()) continue;
        const QLatin1StringView column = node.picture.memberColumn;
        const QString ofMember = member > 0 && !column.isEmpty() ? u" where %1 = %2"_s.arg(column).arg(member) : u""_s;
        statements.push_back((u"SELECT Count(*) as NumRec from "_s + table + ofMember).toStdString());
    }
    return statements;
}

bool compare(const char* what, session::Session& session, SQLite::Database& raw, int member) {
    platform::TreeView view;
    app::HostRows rows(session.gConnection);
    app::CategoryTree tree(view, session, rows);
    tree.build();
    view.setImages({QIcon(), QIcon()});
    session.gPersonID = static_cast<qint16>(member);
    session.gsPersonName = member > 0 ? u"Member"_s : u"Whole Family"_s;

    const std::vector<std::string> statements = countStatements(member);
    const double ours = bestSeconds([&] { tree.setAllImages(); });
    const double theirs = bestSeconds([&] {
        for (const std::string& text : statements) {
            SQLite::Statement count(raw, text);
            count.executeStep();
        }
    });
    const double ratio = ours / theirs;
    std::printf("%-28s ours %7.3f ms   raw %7.3f ms   ratio %.2f (limit %.1f)\n", what, ours * 1e3, theirs * 1e3, ratio,
                limit);
    return ratio <= limit;
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"FamilyInfo.mdb"_s);
    fill(path);
    session::Session session;
    session.gConnection.open(path);
    SQLite::Database raw(path.toStdString(), SQLite::OPEN_READWRITE);
    const bool whole = compare("tree pictures, whole family", session, raw, 0);
    const bool one = compare("tree pictures, one member", session, raw, 3);
    return whole && one ? 0 : 1;
}
