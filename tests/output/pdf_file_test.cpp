#include "platform/print/pdf_file.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/base/runtime_error.h"
#include "tests/support/pdf_bookmarks.h"

using namespace Qt::StringLiterals;

namespace {

class PdfFile : public testing::Test {
protected:
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
    [[nodiscard]] QByteArray bytesOf(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void write(int pages, const std::vector<platform::Bookmark>& bookmarks) const {
        platform::PdfFile file(path(u"a.pdf"_s), u"A book"_s);
        for (int i = 0; i < pages; ++i)
            file.add({{.text = u"some text"_s, .font = u"Courier New"_s, .size = 10}});
        file.setOutline(bookmarks);
        file.end();
    }

private:
    QTemporaryDir folder_;
};

TEST_F(PdfFile, BookmarksHangTogetherByTheirLevels) {
    write(12, {{0, u"Zo\u00EB & \"\u5C71\u7530\" <1>"_s, 1},
               {2, u"two levels down"_s, 1},
               {1, u"one"_s, 2},
               {3, u"(below"_s, 2},
               {3, u"beside\\"_s, 11},
               {0, u"\u05D1\u05D9\u05EA"_s, 12}});
    std::vector<std::pair<int, int>> places;
    QStringList titles;
    for (const platform::Bookmark& bookmark : support::bookmarksOf(path(u"a.pdf"_s))) {
        places.emplace_back(bookmark.level, bookmark.page);
        titles << bookmark.title;
    }
    EXPECT_EQ(places, (std::vector<std::pair<int, int>>{{0, 1}, {1, 1}, {1, 2}, {2, 2}, {2, 11}, {0, 12}}));
    EXPECT_EQ(titles.join(u'|'),
              u"Zo\u00EB & \"\u5C71\u7530\" <1>|two levels down|one|(below|beside\\|\u05D1\u05D9\u05EA"_s);
    EXPECT_TRUE(support::aboutPdf(path(u"a.pdf"_s)).contains(u"A book\n"_s));
}

TEST_F(PdfFile, WhoseBookmarksCanNotBeAddedIsTold) {
    write(3, {});
    const QByteArray whole = bytesOf(u"a.pdf"_s);
    const QByteArray table = whole.sliced(whole.lastIndexOf("\nxref\n"));
    const struct {
        QByteArray bytes;
        int page;
    } broken[] = {{"", 1},
                  {"some text", 1},
                  {whole.chopped(table.size() / 2), 1},
                  {QByteArray(whole).replace("startxref\n", "startxref\n9"), 1},
                  {QByteArray(whole).replace("/Root", "/Soot"), 1},
                  {QByteArray(whole).replace("/Type /Catalog", "/Type /Catalogue"), 1},
                  {whole, 4}};
    for (const auto& [bytes, page] : broken) {
        platform::files::FileReplacement file(path(u"b.pdf"_s));
        file.write(bytes);
        try {
            platform::appendOutline(file, {{0, u"A"_s, 1}, {0, u"B"_s, page}});
            ADD_FAILURE() << bytes.right(100).toStdString();
        } catch (const platform::RuntimeError& error) {
            EXPECT_EQ(error.number(), 57);
        }
    }
    EXPECT_EQ(bytesOf(u"b.pdf"_s), "no file");
}

}  // namespace
