#include "data/database_files.h"

#include "data/provider_error.h"
#include "platform/base/conversions.h"
#include "platform/base/file_identity.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

QString companionFolder(const QString& databasePath) {
    const qsizetype nameAt = databasePath.lastIndexOf(files::separator()) + 1;
    const qsizetype dot = databasePath.lastIndexOf(u'.');
    if (dot < nameAt) throw RuntimeError(Error::Overflow);
    return databasePath.first(dot) + u"Attachments"_s;
}

double kilobytes(qint64 bytes) {
    return platform::roundHalfEven(static_cast<double>(bytes) / 1024, 2);
}

QStringList beyondNewest(QStringList names, qsizetype count, const QStringList& staying) {
    const qsizetype all = names.size();
    names.removeIf([&](const QString& name) { return staying.contains(name); });
    names.sort();
    const qsizetype stayingHere = all - names.size();
    return names.first(qMax(0, names.size() - qMax(0, count - stayingHere)));
}

void requireApart(const QString& folder, const QString& other) {
    if (files::isWithin(folder, other) || files::isWithin(other, folder)) throw RuntimeError(Error::PermissionDenied);
}

}  // namespace data
