#pragma once

#include "platform/print/print_job.h"

namespace platform {

class PrintDevice;

/// Puts lines of text on pages and sends them as one job. Text that would begin below the page's end goes to the next
/// page; text wider than the page runs off.
///
/// The font has one width for all characters, 0.6 of its size, so that columns stand the same on every device.
class Printer {
public:
    /// Error 482 without a printer.
    explicit Printer(PrintDevice& device);

    // Hold until changed, beyond the end of a page and of a job.
    void setFontName(const QString& name) { style_.font = name; }
    void setFontSize(double points) { style_.size = points; }
    void setFontBold(bool bold) { style_.bold = bold; }
    void setFontItalic(bool italic) { style_.italic = italic; }
    void setFontUnderline(bool underline) { style_.underline = underline; }

    void setCurrentX(double twips) { x_ = twips; }
    void setCurrentY(double twips) { y_ = twips; }
    /// Of the whole sheet, in twips.
    [[nodiscard]] double width() const { return area_.width; }
    /// Of the printable area, in twips.
    [[nodiscard]] double scaleWidth() const { return area_.scaleWidth; }
    /// Twips of the widest line of a text in the current font.
    [[nodiscard]] double textWidth(const QString& text) const;

    /// Prints a text and goes to the start of the next line; an empty one is an empty line. CR LF, and either alone,
    /// breaks the line; only the first one begins at a CurrentX that was set.
    void print(const QString& text = {});
    void newPage();
    /// Sends the job; nothing when nothing was printed. Pages at the end that hold only empty lines aren't sent.
    void endDoc();

private:
    void printLine(const QString& text);
    [[nodiscard]] double lineHeight() const;
    void goToTop();

    PrintDevice& device_;
    PageArea area_;
    PrintedLine style_;
    double x_ = 0;
    double y_ = 0;
    PrintJob job_;
};

}  // namespace platform
