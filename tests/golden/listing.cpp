#include "tests/golden/listing.h"

#include <QFile>
#include <QMap>

using namespace Qt::StringLiterals;

namespace golden {

namespace {

QMap<QString, QStringList> readListing() {
    QFile file(QStringLiteral(WINDOWS_LISTING));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no listing at " WINDOWS_LISTING);
    QMap<QString, QStringList> blocks;
    QString heading;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(u"  "_s)) {
            blocks[heading] << line.mid(2);
        } else if (!line.startsWith(u'#')) {
            heading = line;
        }
    }
    return blocks;
}

void tell(testing::AssertionResult& result, const char* what, const QStringList& lines, const QStringList& others) {
    for (const QString& line : lines) {
        if (!others.contains(line)) result << '\n' << what << line.toStdString();
    }
}

}  // namespace

QStringList listed(const QString& heading) {
    static const QMap<QString, QStringList> blocks = readListing();
    return blocks.value(heading);
}

testing::AssertionResult isAsListed(const QString& heading, const QStringList& seen) {
    const QStringList expected = listed(heading);
    if (seen == expected) return testing::AssertionSuccess();
    testing::AssertionResult failure = testing::AssertionFailure() << heading.toStdString() << " is not as listed";
    tell(failure, "  listed: ", expected, seen);
    tell(failure, "  shown:  ", seen, expected);
    failure << "\nall that is shown:\n  " << seen.join(u"\n  "_s).toStdString();
    return failure;
}

}  // namespace golden
