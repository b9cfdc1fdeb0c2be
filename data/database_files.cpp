#include "data/database_files.h"

#include "platform/base/conversions.h"
#include "platform/base/file_identity.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

using platform::RuntimeError;

namespace {

constexpr int overflow = 6;
constexpr int permissionDenied = 70;

}  // namespace

QString companionFolder(const QString& databasePath) {
    const qsizetype nameAt = databasePath.lastIndexOf(files::separator()) + 1;
    const qsizetype dot = databasePath.lastIndexOf(u'.');
    if (dot < nameAt) throw RuntimeError(overflow);
    return databasePath.first(dot) + u"Attachments"_s;
}

double kilobytes(qint64 bytes) {
    return platform::roundHalfEven(static_cast<double>(bytes) / 1024, 2);
}

void requireApart(const QString& folder, const QString& other) {
    if (files::isWithin(folder, other) || files::isWithin(other, folder)) throw RuntimeError(permissionDenied);
}

}  // namespace data
