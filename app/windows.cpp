#include "app/windows.h"

#include <algorithm>

#include "lists/asset_liquidation.h"
#include "lists/coming_dates.h"
#include "lists/family_sequence.h"
#include "lists/medical_log.h"
#include "lists/pins_and_passwords.h"
#include "lists/who_gets_what.h"
#include "screens/catalogue/catalogue.h"
#include "screens/child_screen.h"
#include "screens/cover_page_screen.h"
#include "screens/owned_screen.h"
#include "screens/person_screen.h"
#include "screens/reference_screen.h"
#include "screens/shared_table_screen.h"
#include "screens/special_screens.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

using Made = std::unique_ptr<session::DataWindow>;
using Maker = Made (*)(platform::Desktop&, session::Session&, session::Workspace&, const screens::ScreenDefinition&);

template <class Screen>
Made make(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
          const screens::ScreenDefinition& definition) {
    return std::make_unique<Screen>(desktop, session, workspace, definition);
}

struct OwnClass {
    QLatin1StringView window;
    Maker maker;
};

/// The record screens that are more than their entry. Every other one is an OwnedScreen.
constexpr OwnClass ownClasses[] = {
    {"frmAlimony"_L1, make<screens::AlimonyScreen>},         {"frmChildSupport"_L1, make<screens::SharedTableScreen>},
    {"frmContacts"_L1, make<screens::ReferenceScreen>},      {"frmCoverPage"_L1, make<screens::CoverPageScreen>},
    {"frmDoctors"_L1, make<screens::ReferenceScreen>},       {"frmEducation"_L1, make<screens::EducationScreen>},
    {"frmHomesRented"_L1, make<screens::HomesRentedScreen>}, {"frmImprovements"_L1, make<screens::ChildScreen>},
    {"frmInventory"_L1, make<screens::ChildScreen>},         {"frmLoans"_L1, make<screens::SharedTableScreen>},
    {"frmMortgages"_L1, make<screens::SharedTableScreen>},   {"frmOutbuildings"_L1, make<screens::ChildScreen>},
    {"frmStocks"_L1, make<screens::StocksScreen>},           {"frmTheyOweYou"_L1, make<screens::SharedTableScreen>},
};

using PlainMaker = Made (*)(platform::Desktop&, session::Session&, session::Workspace&);

template <class Window>
Made makePlain(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace) {
    return std::make_unique<Window>(desktop, session, workspace);
}

struct PlainClass {
    QLatin1StringView window;
    PlainMaker maker;
};

/// The windows without an entry in the catalogue.
constexpr PlainClass plainClasses[] = {
    {"frmAssetLiquidation"_L1, makePlain<lists::AssetLiquidation>},
    {"frmComing"_L1, makePlain<lists::ComingDates>},
    {"frmFamilySequence"_L1, makePlain<lists::FamilySequence>},
    {"frmKinbook"_L1, makePlain<screens::PersonScreen>},
    {"frmMedicalLog"_L1, makePlain<lists::MedicalLog>},
    {"frmPinsAndPasswords"_L1, makePlain<lists::PinsAndPasswords>},
    {"frmWhoGetsWhat"_L1, makePlain<lists::WhoGetsWhat>},
};

}  // namespace

std::unique_ptr<session::DataWindow> makeWindow(const QString& name, platform::Desktop& desktop,
                                                session::Session& session, session::Workspace& workspace) {
    const auto* plain = std::ranges::find(plainClasses, name, &PlainClass::window);
    if (plain != std::end(plainClasses)) return plain->maker(desktop, session, workspace);
    const screens::ScreenDefinition* definition = screens::screenDefinition(name);
    if (!definition) return nullptr;
    const auto* own = std::ranges::find(ownClasses, name, &OwnClass::window);
    const Maker maker = own == std::end(ownClasses) ? make<screens::OwnedScreen> : own->maker;
    return maker(desktop, session, workspace, *definition);
}

}  // namespace app
