// Find: a word sought in 100,000 records, against a raw scan that reads the same columns of the same rows.

#include <sqlite3.h>
#include <sys/resource.h>

#include <map>

#include "app/shown_rows.h"
#include "bench/running.h"
#include "find/book_search.h"

using namespace bench;

namespace {

constexpr int homes = 100'000;
constexpr std::chrono::milliseconds slice{8};

/// Homes with eight texts, prices and dates each; one in a thousand has a word in letters that aren't plain.
struct Book : Running {
    Book() : Running(homes, 1) {
        raw->exec(
            "UPDATE HomeOwned SET PurchasePrice = ID * 7.25, Appraisal = ID * 9, "
            "DatePurchased = date('1950-01-01', '+' || (ID % 20000) || ' days')");
        raw->exec("UPDATE HomeOwned SET Comment = Comment || ' Café' WHERE ID % 1000 = 0");
    }
};

/// The same with texts in letters that aren't plain.
struct ForeignBook : Book {
    ForeignBook() {
        raw->exec(
            "UPDATE HomeOwned SET Description = 'Дом у самого синего моря, третий от угла ' || ID, "
            "Addr = 'Большая Морская улица, дом номер ' || ID, City = 'Санкт-Петербург, город на Неве', "
            "Comment = 'Куплен вместе с садом и старой яблоней у забора, номер ' || ID");
    }
};

/// What the search reads, read by SQLite alone.
double scan(sqlite3* file) {
    std::map<QString, QStringList> tables;
    for (const session::ShownRows& shown : app::shownRows()) {
        for (const data::Column& column : shown.columns) {
            QStringList& columns = tables[shown.table->name];
            if (!columns.contains(column.name)) columns.append(column.name);
        }
    }
    return best([&] {
        std::size_t bytes = 0;
        double sum = 0;
        for (const auto& [table, columns] : tables) {
            const QString text = u"SELECT ID, \"%1\" FROM \"%2\""_s.arg(columns.join(u"\", \""_s), table);
            sqlite3_stmt* rows = nullptr;
            if (sqlite3_prepare_v2(file, qPrintable(text), -1, &rows, nullptr) != SQLITE_OK) std::exit(1);
            while (sqlite3_step(rows) == SQLITE_ROW) {
                for (int column = 0; column <= columns.size(); ++column) {
                    const int type = sqlite3_column_type(rows, column);
                    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT) sum += sqlite3_column_double(rows, column);
                    if (type != SQLITE_TEXT) continue;
                    sqlite3_column_text(rows, column);
                    bytes += static_cast<std::size_t>(sqlite3_column_bytes(rows, column));
                }
            }
            sqlite3_finalize(rows);
        }
        if (bytes < homes || sum < homes) std::exit(1);
    });
}

long memory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void search(Book& book, const QString& typed, double limit) {
    // Right beside it, for the machine is not always as fast.
    const double rawScan = scan(book.raw->getHandle());
    find::BookSearch search(book.session.gConnection, app::shownRows());
    double longest = 0;
    double first = 0;
    const double whole = best([&] {
        double sum = 0;
        first = 0;
        search.begin(typed, 0);
        while (!search.isOver()) {
            const double time = milliseconds([&] { search.step(slice); });
            sum += time;
            longest = std::max(longest, time);
            if (first == 0 && search.places() > 0) first = sum;
        }
    });
    report(qPrintable(u"looking for \"%1\""_s.arg(typed)), "ms", whole, rawScan, limit);
    std::printf("  %lld places, the first after %.1f ms (limit 100), the longest slice %.1f ms\n",
                static_cast<long long>(search.places()), first, longest);
    withinLimits() = withinLimits() && first < 100;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    long more = 0;
    {
        Book book;
        const long before = memory();
        for (const QString& typed :
             {u"e"_s, u"cafe"_s, u"nowhere"_s, u"aaaa bbbb"_s, u"1975"_s, u"7,25"_s, u"aaa 1975"_s})
            search(book, typed, 1.5);
        more = memory() - before;
    }
    ForeignBook foreign;
    for (const QString& typed : {u"яблоня"_s, u"НОМЕР 99"_s})
        search(foreign, typed, 2);
    std::printf("%-42s %ld KB (limit 8192)\n", "memory beside the book's", more);
    return withinLimits() && more < 8192 ? 0 : 1;
}
