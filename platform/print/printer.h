#pragma once

#include <QString>

#include "platform/print/print_job.h"

namespace platform {

class PrintDevice;

/// A text and the twips from the left at which it begins.
struct PlacedText {
    double x = 0;
    QString text{};
};

/// Puts lines of text on pages and sends them as one job. Text that would begin below the page's end goes to the next
/// page; text wider than the page runs off. A sheet too small for pageScale() is taken for a larger one.
///
/// The font has one width for all characters, 0.6 of its size, so that columns stand the same on every device.
class Printer {
public:
    /// `title` is what the job is called in the queue. Error 482 without a printer.
    Printer(PrintDevice& device, QString title);

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
    /// Twips of one position in the current font.
    [[nodiscard]] double positionWidth() const;
    /// Twips of the widest line of a text in the current font.
    [[nodiscard]] double textWidth(const QString& text) const;

    /// Prints a text and goes to the start of the next line; an empty one is an empty line. CR LF, and either alone,
    /// breaks the line; only the first one begins at a CurrentX that was set.
    void print(const QString& text = {});
    /// Prints texts on one line, and goes to the start of the next.
    void printBeside(const std::vector<PlacedText>& texts);
    void newPage();
    /// Sends the job; nothing when nothing was printed. Pages at the end that hold only empty lines aren't sent.
    void endDoc();

private:
    [[nodiscard]] double lineHeight() const;
    void goToTop();

    PrintDevice& device_;
    QString title_;
    PageArea area_;
    PrintedLine style_;
    double x_ = 0;
    double y_ = 0;
    PrintJob job_;
};

}  // namespace platform
