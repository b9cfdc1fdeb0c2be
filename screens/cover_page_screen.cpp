#include "screens/cover_page_screen.h"

#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace screens {

void CoverPageScreen::ShowMe() {
    if (!rows().isOpen()) {
        setCaption(definition().title);
        openRows(definition().query);
        bindBoxes();
        if (rows().eof()) {
            setButtons(false);
            desktop().notice(u"No cover page information was found."_s, u"No Cover Page Info"_s,
                             platform::Icon::Information);
            cmdAdd_Click();
        } else {
            rows().moveFirst();
        }
    }
    show();
}

void CoverPageScreen::setButtons(bool browsing) {
    RecordScreen::setButtons(browsing);
    bChange = false;
}

void CoverPageScreen::cmdClose_Click() {
    unload();
}

}  // namespace screens
