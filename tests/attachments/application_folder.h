#pragma once

#include "data/template.h"
#include "tests/support/test_folder.h"

/// An application folder with an empty database, and files to attach beside it.
class ApplicationFolder {
public:
    ApplicationFolder() {
        folder_.makeFolder(QStringLiteral("app"));
        data::createTemplate(database());
    }

    [[nodiscard]] QString path() const { return folder_.path(QStringLiteral("app")); }
    [[nodiscard]] QString database() const { return folder_.path(QStringLiteral("app/FamilyInfo.mdb")); }
    [[nodiscard]] QString stored(const QString& name) const { return path() + QStringLiteral("/Attachments/") + name; }
    [[nodiscard]] QStringList storedNames() const { return folder_.namesIn(stored({})); }

    /// Makes a file to attach and gives its full name.
    [[nodiscard]] QString source(const QString& name, const QByteArray& content = "content") const {
        return folder_.write(QStringLiteral("source/") + name, content);
    }
    [[nodiscard]] QByteArray contentOf(const QString& path) const { return folder_.bytesOf(path); }

private:
    support::TestFolder folder_;
};
