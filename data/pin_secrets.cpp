#include "data/pin_secrets.h"

#include "data/cipher.h"
#include "data/recordset.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

namespace {

void encipherRow(Recordset& row) {
    if (row.value(u"Encrypted"_s).toString() != plainMark()) return;
    row.setValue(u"PIN_Password"_s, cipher(row.value(u"PIN_Password"_s).toString()));
    row.setValue(u"Encrypted"_s, cipher(plainMark()));
    row.update();
}

}  // namespace

void encipherFile(const QString& path) {
    Connection file;
    file.open(path);
    encipherPins(file);
}

bool hasPlainPins(Connection& connection) {
    Recordset plain;
    plain.open(u"Select ID from PIN_Password where Encrypted = '%1'"_s.arg(plainMark()), connection);
    return !plain.eof();
}

void encipherPins(Connection& connection, std::optional<qint16> member) {
    Recordset rows(Opening::List);
    const QString whose = member ? u" where PersonID = %1"_s.arg(*member) : QString();
    rows.open(u"Select * from PIN_Password"_s + whose, connection);
    for (; !rows.eof(); rows.moveNext())
        encipherRow(rows);
}

qint64 backUpDatabase(const QString& source, const QString& target) {
    qint64 bytes = 0;
    files::copyFile(source, target, [&bytes](const QString& copy) {
        encipherFile(copy);
        bytes = files::fileSize(copy);
    });
    return bytes;
}

}  // namespace data
