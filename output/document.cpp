#include "output/document.h"

#include "output/field_entry.h"
#include "output/line_end.h"
#include "output/printable_screen.h"
#include "platform/base/date_text.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int emptyLinesAtHead = 6;

QString titleBlock(const QString& title, const QDate& today) {
    return u"     The "_s + title + lineEnd + u"     For "_s + platform::mediumDate(today) + lineEnd + lineEnd;
}

QString document(const PrintableScreen& screen, const QDate& today, Medium medium) {
    QString text = titleBlock(screen.caption, today);
    for (const PrintableField& field : screen.fields)
        text += fieldEntry(field, medium);
    const QString margin(medium == Medium::Page ? 6 : 5, u' ');
    for (const PrintableCheck& check : screen.checks)
        text += margin + check.caption + u" - "_s + (check.isSet ? u"Yes"_s : u"No"_s) + lineEnd;
    return text + lineEnd;
}

}  // namespace

QString jobTitle(const PrintableScreen& screen) {
    return u"%1, record %2 of %3"_s.arg(screen.caption).arg(screen.position).arg(screen.count);
}

QString documentHead(const QString& title, const QDate& today) {
    return lineEnd.repeated(emptyLinesAtHead) + titleBlock(title, today);
}

QString pageDocument(const PrintableScreen& screen, const QDate& today) {
    return lineEnd.repeated(emptyLinesAtHead) + document(screen, today, Medium::Page);
}

QString fileDocument(const PrintableScreen& screen, const QDate& today) {
    return document(screen, today, Medium::File);
}

}  // namespace output
