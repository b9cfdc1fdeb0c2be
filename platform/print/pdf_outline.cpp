#include "platform/print/pdf_outline.h"

#include <QByteArray>
#include <QFile>
#include <algorithm>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <span>

#include "platform/base/file_replacement.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// What the writer of the file writes into, a piece of a few bytes at a time.
class Target : public Pipeline {
public:
    explicit Target(files::FileReplacement& file) : Pipeline("target", nullptr), file_(file) {}

    void write(const unsigned char* bytes, std::size_t count) override {
        held_.append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
        if (held_.size() >= most) finish();
    }
    void finish() override {
        file_.write(held_);
        held_.clear();
    }

private:
    static constexpr qsizetype most = 1 << 16;

    files::FileReplacement& file_;
    QByteArray held_;
};

using Bookmarks = std::span<const Bookmark>;

/// Hangs bookmarks into a file, each under the one that it belongs to.
class Outline {
public:
    explicit Outline(QPDF& pdf) : pdf_(pdf), pages_(QPDFPageDocumentHelper(pdf).getAllPages()) {}

    void add(Bookmarks bookmarks) {
        QPDFObjectHandle root = pdf_.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Outlines >>"));
        root.replaceKey("/Count", QPDFObjectHandle::newInteger(hang(root, bookmarks)));
        pdf_.getRoot().replaceKey("/Outlines", root);
        pdf_.getRoot().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
    }

private:
    /// Gives how many of them are to be seen at first: what stands below them is folded up.
    int hang(QPDFObjectHandle& parent, Bookmarks bookmarks) {
        QPDFObjectHandle before;
        int count = 0;
        while (!bookmarks.empty()) {
            const Bookmarks below = belowFirst(bookmarks);
            QPDFObjectHandle item = makeItem(bookmarks.front(), parent);
            if (const int inside = hang(item, below); inside > 0)
                item.replaceKey("/Count", QPDFObjectHandle::newInteger(-inside));
            if (count++ == 0) {
                parent.replaceKey("/First", item);
            } else {
                item.replaceKey("/Prev", before);
                before.replaceKey("/Next", item);
            }
            parent.replaceKey("/Last", item);
            before = item;
            bookmarks = bookmarks.subspan(below.size() + 1);
        }
        return count;
    }

    static Bookmarks belowFirst(Bookmarks bookmarks) {
        const auto next = std::ranges::find_if(
            bookmarks.subspan(1), [&](const Bookmark& other) { return other.level <= bookmarks.front().level; });
        return {bookmarks.begin() + 1, next};
    }

    QPDFObjectHandle makeItem(const Bookmark& bookmark, QPDFObjectHandle& parent) {
        QPDFObjectHandle page = pages_.at(static_cast<std::size_t>(bookmark.page - 1)).getObjectHandle();
        QPDFObjectHandle item = QPDFObjectHandle::newDictionary();
        item.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(bookmark.title.toStdString()));
        item.replaceKey("/Parent", parent);
        item.replaceKey("/Dest", QPDFObjectHandle::newArray({page, QPDFObjectHandle::newName("/Fit")}));
        return pdf_.makeIndirectObject(item);
    }

    QPDF& pdf_;
    std::vector<QPDFPageObjectHelper> pages_;
};

}  // namespace

void writeWithOutline(const QString& pdf, const std::vector<Bookmark>& bookmarks, files::FileReplacement& target) {
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        document.setAttemptRecovery(false);
        document.processFile(QFile::encodeName(pdf).constData());
        Outline(document).add(bookmarks);
        Target bytes(target);
        QPDFWriter writer(document);
        writer.setOutputPipeline(&bytes);
        writer.write();
        bytes.finish();
    } catch (const QPDFExc& error) {
        throw RuntimeError(Error::DeviceFailure, QString::fromUtf8(error.what()));
    }
}

}  // namespace platform
