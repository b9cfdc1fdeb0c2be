// What the first start of a day costs the user: a start that has the day's copy to make against one that has not, for a
// book of 10 MB. Both the way to the host window and the longest moment in which the window doesn't listen count.

#include <SQLiteCpp/SQLiteCpp.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "app/kinbook.h"
#include "data/template.h"
#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;
constexpr double limit = 50;

struct Milliseconds {
    double start = 1e9;
    double longestPause = 1e9;
};

double since(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double longestPauseWithin(int milliseconds) {
    double longest = 0;
    QElapsedTimer all;
    for (all.start(); all.elapsed() < milliseconds;) {
        QElapsedTimer one;
        one.start();
        QApplication::processEvents();
        longest = std::max(longest, since(one));
    }
    return longest;
}

Milliseconds measure(const QString& folder) {
    app::Kinbook kinbook(folder);
    QElapsedTimer timer;
    timer.start();
    kinbook.main();
    const Milliseconds found{since(timer), longestPauseWithin(700)};
    kinbook.desktop().endRun();
    return found;
}

void layOut(const QTemporaryDir& folder) {
    const QString live = folder.filePath(u"FamilyInfo.mdb"_s);
    data::createTemplate(live);
    SQLite::Database(live.toStdString(), SQLite::OPEN_READWRITE)
        .exec(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9500) "
            "INSERT INTO Contacts (Comment) SELECT hex(randomblob(500)) FROM n");
    QFile definition(folder.filePath(u"SplashDef.txt"_s));
    if (definition.open(QIODevice::WriteOnly)) definition.write("CompanyName=Larkmoor\r\nValue=\r\nSplash=1\r\n");
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    layOut(folder);
    Milliseconds best[2];
    bool isCopied = true;
    for (int round = 0; round < rounds * 2; ++round) {
        const bool copies = round % 2 == 1;
        QDir backups(folder.filePath(u"Backup"_s));
        backups.removeRecursively();
        if (copies) QDir().mkdir(backups.path());
        const Milliseconds found = measure(folder.path());
        isCopied = isCopied && (!copies || !QDir(backups.filePath(u"Daily"_s)).entryList({u"*.mdb"_s}).isEmpty());
        best[copies].start = std::min(best[copies].start, found.start);
        best[copies].longestPause = std::min(best[copies].longestPause, found.longestPause);
    }
    const double later = best[1].start - best[0].start;
    const double paused = best[1].longestPause - best[0].longestPause;
    std::printf("daily copy, %.1f MB           window later by %5.1f ms   pause longer by %5.1f ms (limit %.0f)%s\n",
                static_cast<double>(QFile(folder.filePath(u"FamilyInfo.mdb"_s)).size()) / 1e6, later, paused, limit,
                isCopied ? "" : "   NOT COPIED");
    return isCopied && later <= limit && paused <= limit ? 0 : 1;
}
