#include <malloc.h>
#include <sqlite3.h>

#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>

#include "data/connection.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int rowCount = 100'000;
constexpr int moveCount = 20'000;
constexpr int repetitions = 7;

const char* const homes =
    "FROM Person INNER JOIN HomeOwned ON Person.ID = HomeOwned.PersonID ORDER BY Person.Seq, HomeOwned.ID";

/// SQLite without anything of ours around it, as the measure.
class RawFile {
public:
    explicit RawFile(const QString& path) { check(sqlite3_open(path.toUtf8().constData(), &file_)); }
    ~RawFile() { sqlite3_close(file_); }
    RawFile(const RawFile&) = delete;
    RawFile& operator=(const RawFile&) = delete;

    void exec(const std::string& sql) { check(sqlite3_exec(file_, sql.c_str(), nullptr, nullptr, nullptr)); }

    void fill() {
        std::string columns, values;
        for (int i = 0; i < 20; ++i) {
            columns += ", Text" + std::to_string(i) + " TEXT(60)";
            values += ", printf('%050d', n + " + std::to_string(i) + ")";
        }
        exec(
            "CREATE TABLE Person (ID INTEGER PRIMARY KEY AUTOINCREMENT, Seq INTEGER, LegalName TEXT(50));"
            "CREATE TABLE HomeOwned (ID INTEGER PRIMARY KEY AUTOINCREMENT, PersonID INTEGER" +
            columns +
            ");"
            "WITH r(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM r WHERE n < 8)"
            " INSERT INTO Person SELECT n, 9 - n, 'Person ' || n FROM r;"
            "WITH r(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM r WHERE n < " +
            std::to_string(rowCount) +
            ")"
            " INSERT INTO HomeOwned SELECT n, n % 8 + 1" +
            values + " FROM r;");
    }

    int stepThroughKeys() {
        sqlite3_stmt* keys = prepare(std::string("SELECT HomeOwned.ID ") + homes);
        int rows = 0;
        while (sqlite3_step(keys) == SQLITE_ROW)
            rows += sqlite3_column_int64(keys, 0) > 0 ? 1 : 0;
        sqlite3_finalize(keys);
        return rows;
    }

    size_t readByKey(const std::vector<int>& keys) {
        sqlite3_stmt* row = prepare("SELECT * FROM HomeOwned WHERE ID = ?");
        size_t bytes = 0;
        for (const int key : keys) {
            sqlite3_bind_int(row, 1, key);
            sqlite3_step(row);
            for (int column = 0; column < sqlite3_column_count(row); ++column)
                bytes += sqlite3_column_text(row, column) != nullptr ? sqlite3_column_bytes(row, column) : 0;
            sqlite3_reset(row);
        }
        sqlite3_finalize(row);
        return bytes;
    }

private:
    void check(int result) {
        if (result != SQLITE_OK) {
            std::fprintf(stderr, "%s\n", sqlite3_errmsg(file_));
            std::exit(2);
        }
    }

    sqlite3_stmt* prepare(const std::string& sql) {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v2(file_, sql.c_str(), -1, &statement, nullptr));
        return statement;
    }

    sqlite3* file_ = nullptr;
};

/// Milliseconds of the middle one of several runs.
template <typename Work>
double median(Work work) {
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    std::sort(times.begin(), times.end());
    return times[repetitions / 2];
}

bool report(const char* what, double ours, double raw, double limit, const char* unit) {
    const double ratio = ours / raw;
    std::printf("%-34s %10.3f %s  raw %10.3f %s  ratio %5.2f  limit %.0f  %s\n", what, ours, unit, raw, unit, ratio,
                limit, ratio <= limit ? "ok" : "TOO SLOW");
    return ratio <= limit;
}

void openHomes(data::Recordset& rows, data::Connection& connection) {
    rows.release();
    rows.open(u"SELECT HomeOwned.* "_s + QString::fromUtf8(homes), connection);
}

bool measureOpen(data::Recordset& rows, data::Connection& connection, RawFile& raw) {
    const double ours = median([&] { openHomes(rows, connection); });
    return report("open 100,000 rows", ours, median([&] { raw.stepThroughKeys(); }), 2, "ms");
}

bool measureMoves(data::Recordset& rows, RawFile& raw) {
    std::mt19937 random(7);
    std::vector<int> places(moveCount);
    std::generate(places.begin(), places.end(), [&] { return static_cast<int>(random() % rowCount) + 1; });
    const double ours = median([&] {
        for (const int place : places)
            rows.setBookmark(place);
    });
    const double theirs = median([&] { raw.readByKey(places); });
    return report("move to any row", ours * 1000 / moveCount, theirs * 1000 / moveCount, 3, "us");
}

/// What the heap grows by, the file's page cache being full already.
bool measureMemory(data::Recordset& rows, data::Connection& connection) {
    rows.release();
    malloc_trim(0);
    const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    openHomes(rows, connection);
    const size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
    const double bytes = static_cast<double>(after - before) / rowCount;
    std::printf("%-34s %10.1f bytes  limit 64  %s\n", "kept for a row", bytes, bytes <= 64 ? "ok" : "TOO MUCH");
    return bytes <= 64;
}

}  // namespace

/// Compares recordsets with SQLite by itself on the same file in the same run; fails where a limit is broken.
int main() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"family.mdb"_s);
    RawFile raw(path);
    raw.fill();
    data::Connection connection;
    connection.open(path);
    data::Recordset rows(data::Opening::Screen);
    bool ok = measureOpen(rows, connection, raw);
    ok &= measureMoves(rows, raw);
    ok &= measureMemory(rows, connection);
    return ok ? 0 : 1;
}
