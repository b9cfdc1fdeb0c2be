#pragma once

#include <QFile>
#include <QPdfWriter>

#include "platform/base/file_replacement.h"
#include "platform/print/job_pages.h"
#include "platform/print/job_painter.h"
#include "platform/print/pdf_outline.h"

namespace platform {

/// A PDF file that is written page by page. It takes its name when it is whole: until then a file of that name stays as
/// it was, and another lies beside it.
class PdfFile : public JobPages {
public:
    /// Errors: 5 without a name, 76 without the folder, 70 where the file is read-only or no file.
    PdfFile(const QString& path, const QString& title);

    /// The sheet that is usual in the region, with the edges that a household printer can't reach.
    [[nodiscard]] static PageArea page();

    void add(const PrintedPage& page) override;
    /// The bookmarks that the file gets at its end, by ascending pages.
    void setOutline(std::vector<Bookmark> outline) { outline_ = std::move(outline); }
    void end() override;

private:
    void checkWritten() const;

    files::FileReplacement file_;
    QFile out_;
    QPdfWriter writer_;
    JobPainter painter_;
    std::vector<Bookmark> outline_;
};

}  // namespace platform
