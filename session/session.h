#pragma once

#include <QString>

#include "data/connection.h"
#include "session/selection.h"

namespace session {

/// The words of the splash window and the About box, and the main password, as the definition file gives them.
struct Definition {
    QString gsCompanyName;
    QString gsNameFontSize;
    QString gsProductName;
    QString gsVersion;
    QString gsCopyright;
    QString gsCompany;
    QString gsSlogan;
    QString gsAddress;
    QString gsCity;
    QString gsState;
    QString gsZip;
    QString gsPhone;
    QString gsSupportPhone;
    QString gsMainPassword;
    qint16 giSplashSeconds = 0;
};

/// The values of one run, which all windows share. Made at start, never kept beyond it.
struct Session {
    /// Folder of the executable, without a closing separator; every path of the program is built on it.
    QString applicationFolder;
    Definition definition;

    data::Connection gConnection;
    QString gsDatabaseName;
    QString gsDatabasePath;

    QString gsPersonName;
    /// ID of the selected member; 0 when none is. The Person screen's move buttons change it as well.
    qint16 gPersonID = 0;
    bool gbWholeFamily = true;
    /// False in read-only mode: a main password is set and nobody has logged in.
    bool gbCanEdit = true;
    /// The next load of the Person screen starts an add.
    bool gbAddMember = false;
    /// Attachment key of the record on screen.
    QString gvAttachKey;
    bool gbHelpOpened = false;

    /// Whose rows the windows show that are opened now.
    [[nodiscard]] Selection selection() const { return {gsPersonName, gPersonID, gbWholeFamily}; }

    /// Name of the family's database file in the application folder.
    [[nodiscard]] static QString liveDatabaseName();
    /// The family's database file is the session's from here on; it isn't opened by that.
    void useLiveDatabase();
    /// A path in the application folder.
    [[nodiscard]] QString path(const QString& name) const;
};

}  // namespace session
