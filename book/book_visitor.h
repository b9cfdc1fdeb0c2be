#pragma once

#include <QString>
#include <QStringList>

namespace output {
struct PrintableGrid;
struct PrintableScreen;
}  // namespace output

namespace book {

/// Hears what a family book is made of, in its order. Whoever gives false wants to hear no more.
class BookVisitor {
public:
    virtual ~BookVisitor() = default;

    /// What comes next stands under this heading, or under the next one if nothing comes. `above`: what stands at the
    /// head of the pages.
    virtual void heading(int level, const QString& title, const QString& above) = 0;
    [[nodiscard]] virtual bool record(const output::PrintableScreen& screen) = 0;

    /// A listing: its head, its rows, its end.
    virtual void beginList(const output::PrintableGrid& head) = 0;
    [[nodiscard]] virtual bool row(const QStringList& cells) = 0;
    virtual void endList() = 0;
};

}  // namespace book
