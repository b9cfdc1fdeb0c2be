// What the benchmarks of the windows share: the program with its host up, and how a ratio is taken and shown.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <limits>
#include <memory>

#include "app/mdi_host.h"
#include "data/template.h"
#include "platform/forms/desktop.h"
#include "screens/catalogue/catalogue.h"
#include "session/data_window.h"
#include "session/session.h"

namespace bench {

using namespace Qt::StringLiterals;

constexpr int rounds = 7;

inline bool& withinLimits() {
    static bool within = true;
    return within;
}

inline void report(const char* what, const char* unit, double ours, double theirs, double limit) {
    const double ratio = ours / theirs;
    withinLimits() = withinLimits() && ratio <= limit;
    std::printf("%-42s ours %9.3f %s   raw %9.3f %s   ratio %.2f (limit %.1f)\n", what, ours, unit, theirs, unit, ratio,
                limit);
}

template <class Routine>
double milliseconds(const Routine& routine) {
    QElapsedTimer timer;
    timer.start();
    routine();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

template <class Routine>
double best(const Routine& routine) {
    double least = std::numeric_limits<double>::max();
    for (int i = 0; i < rounds; ++i)
        least = std::min(least, milliseconds(routine));
    return least;
}

/// The program with its host up, over a file in which a table has some filled rows.
class Running {
public:
    Running(int homes, int rowsElsewhere) {
        const QString path = folder_.filePath(u"FamilyInfo.mdb"_s);
        data::createTemplate(path);
        fill(path, homes, rowsElsewhere);
        session.applicationFolder = folder_.path();
        session.gConnection.open(path);
        host = &desktop.load(std::make_unique<app::MDIHost>(desktop, session));
        host->resize(1200, 800);
        host->show();
        session.gsPersonName = u"Whole Family"_s;
        QApplication::processEvents();
        raw = std::make_unique<SQLite::Database>(path.toStdString(), SQLite::OPEN_READWRITE);
    }

    session::DataWindow& open(const QString& name) {
        session::DataWindow* window = host->windows().touch(name);
        window->ShowMe();
        window->show();
        QApplication::processEvents();
        return *window;
    }
    void close(session::DataWindow& window) {
        window.leave();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    session::Session session;
    platform::Desktop desktop;
    app::MDIHost* host = nullptr;
    std::unique_ptr<SQLite::Database> raw;

private:
    static void fill(const QString& path, int homes, int rowsElsewhere) {
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        SQLite::Transaction all(file);
        for (int i = 1; i <= 8; ++i) {
            file.exec("INSERT INTO Person (LegalName, Seq) VALUES ('Member " + std::to_string(i) + "', " +
                      std::to_string(i) + ")");
        }
        SQLite::Statement insert(file,
                                 "INSERT INTO HomeOwned (PersonID, Type, Description, Addr, Purpose, City, State, "
                                 "Comment) VALUES (?,?,?,?,?,?,?,?)");
        for (int i = 0; i < homes; ++i) {
            insert.bind(1, i % 8 + 1);
            for (int column = 2; column <= 8; ++column)
                insert.bind(column, std::string(45, static_cast<char>('a' + i % 26)) + std::to_string(i));
            insert.exec();
            insert.reset();
        }
        for (const screens::ScreenDefinition& screen : screens::ownedScreens()) {
            for (int i = 0; screen.table != "HomeOwned"_L1 && i < rowsElsewhere; ++i) {
                file.exec("INSERT INTO " + std::string(screen.table.data()) + " (PersonID) VALUES (1)");
            }
        }
        file.exec("UPDATE Obligations SET Type = 2 + ID % 3");
        all.commit();
    }

    QTemporaryDir folder_;
};

}  // namespace bench
