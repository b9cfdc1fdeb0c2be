#include "platform/print/pdf_outline.h"

#include <QByteArray>
#include <QFile>
#include <QStringEncoder>
#include <algorithm>
#include <utility>

#include "platform/base/file_replacement.h"
#include "platform/base/runtime_error.h"

// A PDF file may be added to at its end: objects, new or in the place of old ones, then a table that tells where these
// lie and where the table before it does. So nothing of the pages is read or held but the list of their numbers, line
// by line.

namespace platform {

namespace {

QByteArray reference(int object) {
    return QByteArray::number(object) + " 0 R";
}

/// What there is to know of the file that the toolkit has written.
class FinishedPages {
public:
    explicit FinishedPages(const QString& pdf) : file_(pdf) {
        if (!file_.open(QIODevice::ReadOnly)) throw RuntimeError(Error::DeviceFailure);
        findTable();
        goTo(offsets_ + objects_ * bytesOfOffset);
        expect("trailer\n");
        trailer_ = textUntil("startxref\n");
        goToObject(catalogNumber());
        catalog_ = textUntil("endobj\n");
        goToObject(numberBehind("/Pages ", catalog_));
        while (line() != "[\n") {
        }
    }

    [[nodiscard]] qint64 size() const { return file_.size(); }
    [[nodiscard]] qint64 table() const { return table_; }
    /// How many there are; the next one has this number.
    [[nodiscard]] int objects() const { return objects_; }
    [[nodiscard]] int catalogNumber() const { return numberBehind("/Root ", trailer_); }
    [[nodiscard]] int infoNumber() const { return numberBehind("/Info ", trailer_); }
    /// Its dictionary, open at the end.
    [[nodiscard]] QByteArray openCatalog() const { return catalog_.first(catalog_.lastIndexOf(">>")); }

    /// The object of a page, which is none before the one asked for last.
    [[nodiscard]] int page(int number) {
        for (; pagesRead_ < number; ++pagesRead_)
            page_ = numberIn(line());
        return page_;
    }

private:
    static constexpr qint64 bytesOfOffset = 20;

    static int numberIn(const QByteArray& text) {
        const int number = text.first(std::max<qsizetype>(text.indexOf(' '), 0)).toInt();
        if (number <= 0) throw RuntimeError(Error::DeviceFailure);
        return number;
    }
    static int numberBehind(const QByteArray& key, const QByteArray& dictionary) {
        const qsizetype at = dictionary.indexOf(key);
        return numberIn(at < 0 ? QByteArray() : dictionary.sliced(at + key.size()));
    }

    void goTo(qint64 offset) {
        if (!file_.seek(offset)) throw RuntimeError(Error::DeviceFailure);
    }
    QByteArray line() {
        QByteArray line = file_.readLine();
        if (line.isEmpty()) throw RuntimeError(Error::DeviceFailure);
        return line;
    }
    void expect(const QByteArray& text) {
        if (line() != text) throw RuntimeError(Error::DeviceFailure);
    }
    QByteArray textUntil(const QByteArray& end) {
        QByteArray text;
        for (QByteArray next = line(); next != end; next = line())
            text += next;
        return text;
    }

    /// The file ends with where its table is; that begins with the numbers of the first object and of all.
    void findTable() {
        constexpr qint64 end = 40;
        goTo(std::max<qint64>(size() - end, 0));
        const QByteArray last = file_.readAll();
        table_ = numberBehind("startxref\n", last);
        goTo(table_);
        expect("xref\n");
        objects_ = numberBehind("0 ", line().replace('\n', ' '));
        offsets_ = file_.pos();
    }
    void goToObject(int object) {
        goTo(offsets_ + object * bytesOfOffset);
        const QByteArray offset = file_.read(bytesOfOffset);
        goTo(numberIn(offset));
        expect(QByteArray::number(object) + " 0 obj\n");
    }

    QFile file_;
    qint64 table_ = 0;
    qint64 offsets_ = 0;
    int objects_ = 0;
    QByteArray trailer_;
    QByteArray catalog_;
    int pagesRead_ = 0;
    int page_ = 0;
};

/// What is added behind the pages, handed on in large pieces.
class Addition {
public:
    Addition(files::FileReplacement& file, qint64 start) : file_(file), position_(start) {}

    /// Gives where it lies.
    qint64 add(int object, const QByteArray& text) {
        const qint64 start = position_;
        put(QByteArray::number(object) + " 0 obj\n" + text + "\nendobj\n");
        return start;
    }
    /// A piece of the table: where the objects from `first` on lie.
    void addOffsets(int first, const std::vector<qint64>& offsets) {
        put(QByteArray::number(first) + ' ' + QByteArray::number(offsets.size()) + '\n');
        for (const qint64 offset : offsets)
            put(QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n");
    }
    void put(const QByteArray& text) {
        held_ += text;
        position_ += text.size();
        constexpr qsizetype most = 1 << 16;
        if (held_.size() > most) finish();
    }
    void finish() {
        file_.write(held_);
        held_.clear();
    }
    [[nodiscard]] qint64 position() const { return position_; }

private:
    files::FileReplacement& file_;
    qint64 position_;
    QByteArray held_;
};

/// How a bookmark hangs together with others, which are numbered from 1; 0 is what they all hang on.
struct Links {
    int parent = 0;
    int previous = 0;
    int next = 0;
    int first = 0;
    int last = 0;
    int count = 0;  ///< of those that hang on it themselves
};

std::vector<Links> linksOf(const std::vector<Bookmark>& bookmarks) {
    std::vector<Links> links(1);
    std::vector<int> above{0};
    const auto levelOf = [&](int number) { return bookmarks[static_cast<std::size_t>(number - 1)].level; };
    const auto at = [&](int number) -> Links& { return links[static_cast<std::size_t>(number)]; };
    for (const Bookmark& bookmark : bookmarks) {
        const int number = static_cast<int>(links.size());
        while (above.back() > 0 && levelOf(above.back()) >= bookmark.level)
            above.pop_back();
        Links& parent = at(above.back());
        const int previous = std::exchange(parent.last, number);
        (previous > 0 ? at(previous).next : parent.first) = number;
        ++parent.count;
        links.push_back({.parent = above.back(), .previous = previous});
        above.push_back(number);
    }
    return links;
}

/// `root`: the object on which all bookmarks hang. They follow it.
QByteArray itemText(const Bookmark& bookmark, const Links& links, int root, int page) {
    QStringEncoder encode(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
    const QByteArray title = encode(bookmark.title);
    QByteArray text = "<<\n/Title <" + title.toHex() + ">\n/Dest [" + reference(page) + " /Fit]\n";
    text += "/Parent " + reference(root + links.parent) + '\n';
    if (links.previous > 0) text += "/Prev " + reference(root + links.previous) + '\n';
    if (links.next > 0) text += "/Next " + reference(root + links.next) + '\n';
    return text;
}

/// The end of one that others hang on, folded up but for the first.
QByteArray belowText(const Links& links, int root, bool isFolded) {
    if (links.count == 0) return ">>";
    return "/First " + reference(root + links.first) + "\n/Last " + reference(root + links.last) + "\n/Count " +
           QByteArray::number(isFolded ? -links.count : links.count) + "\n>>";
}

}  // namespace

void appendOutline(files::FileReplacement& pdf, const std::vector<Bookmark>& bookmarks) {
    FinishedPages pages(pdf.path());
    Addition addition(pdf, pages.size());
    const int root = pages.objects();
    const std::vector<Links> links = linksOf(bookmarks);

    const QByteArray catalog = pages.openCatalog() + "/Outlines " + reference(root) + "\n/PageMode /UseOutlines\n>>";
    const qint64 catalogOffset = addition.add(pages.catalogNumber(), catalog);
    std::vector<qint64> offsets{addition.add(root, "<<\n/Type /Outlines\n" + belowText(links.front(), root, false))};
    for (std::size_t i = 1; i < links.size(); ++i) {
        const Bookmark& bookmark = bookmarks[i - 1];
        const QByteArray item = itemText(bookmark, links[i], root, pages.page(bookmark.page));
        offsets.push_back(addition.add(root + static_cast<int>(i), item + belowText(links[i], root, true)));
    }

    const qint64 table = addition.position();
    addition.put("xref\n");
    addition.addOffsets(pages.catalogNumber(), {catalogOffset});
    addition.addOffsets(root, offsets);
    addition.put("trailer\n<<\n/Size " + QByteArray::number(root + static_cast<int>(links.size())) + "\n/Root " +
                 reference(pages.catalogNumber()) + "\n/Info " + reference(pages.infoNumber()) + "\n/Prev " +
                 QByteArray::number(pages.table()) + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
    addition.finish();
}

}  // namespace platform
