#include "tests/support/pdf_bookmarks.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace support {

namespace {

QByteArray answerOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0) << program.toStdString();
    EXPECT_EQ(process.readAllStandardError().toStdString(), "");
    return process.readAllStandardOutput();
}

}  // namespace

std::vector<platform::Bookmark> bookmarksOf(const QString& pdf) {
    std::vector<platform::Bookmark> bookmarks;
    QXmlStreamReader xml(answerOf(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-l"_s, u"1"_s, u"-stdout"_s, u"-q"_s, pdf}));
    for (int level = -1; !xml.atEnd(); xml.readNext()) {
        if (xml.name() == "outline"_L1) level += xml.isStartElement() ? 1 : -1;
        if (xml.name() != "item"_L1 || !xml.isStartElement()) continue;
        const int page = xml.attributes().value("page"_L1).toInt();
        bookmarks.push_back({level, xml.readElementText(), page});
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return bookmarks;
}

QString aboutPdf(const QString& pdf) {
    return QString::fromUtf8(answerOf(u"pdfinfo"_s, {pdf}));
}

}  // namespace support
