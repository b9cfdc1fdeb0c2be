#include "tests/support/ordinary_family.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>

namespace support {

OrdinaryFamily::OrdinaryFamily(const QString& folder) {
    if (::geteuid() != 0) return;
    constexpr uid_t nobody = 65534;
    EXPECT_EQ(::chown(qPrintable(folder), nobody, nobody), 0);
    QDirIterator inside(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (inside.hasNext())
        EXPECT_EQ(::chown(qPrintable(inside.next()), nobody, nobody), 0);
    EXPECT_EQ(::seteuid(nobody), 0);
}

OrdinaryFamily::~OrdinaryFamily() {
    EXPECT_EQ(::seteuid(before_), 0);
}

}  // namespace support
