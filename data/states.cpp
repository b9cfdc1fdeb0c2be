#include "data/states.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr QLatin1StringView names[] = {
    "--"_L1,
    "Alabama"_L1,
    "Alaska"_L1,
    "American Samoa"_L1,
    "Arizona"_L1,
    "Arkansas"_L1,
    "California"_L1,
    "Colorado"_L1,
    "Connecticut"_L1,
    "Delaware"_L1,
    "District of Columbia"_L1,
    "Florida"_L1,
    "Georgia"_L1,
    "Guam"_L1,
    "Hawaii"_L1,
    "Idaho"_L1,
    "Illinois"_L1,
    "Indiana"_L1,
    "Iowa"_L1,
    "Kansas"_L1,
    "Kentucky"_L1,
    "Louisiana"_L1,
    "Maine"_L1,
    "Maryland"_L1,
    "Massachusetts"_L1,
    "Michigan"_L1,
    "Minnesota"_L1,
    "Mississippi"_L1,
    "Missouri"_L1,
    "Montana"_L1,
    "Nebraska"_L1,
    "Nevada"_L1,
    "New Hampshire"_L1,
    "New Jersey"_L1,
    "New Mexico"_L1,
    "New York"_L1,
    "North Carolina"_L1,
    "North Dakota"_L1,
    "Northern Mariana Islands"_L1,
    "Ohio"_L1,
    "Oklahoma"_L1,
    "Oregon"_L1,
    "Pennsylvania"_L1,
    "Puerto Rico"_L1,
    "Rhode Island"_L1,
    "South Carolina"_L1,
    "South Dakota"_L1,
    "Tennessee"_L1,
    "Texas"_L1,
    "Utah"_L1,
    "Vermont"_L1,
    "Virgin Islands"_L1,
    "Virginia"_L1,
    "Washington"_L1,
    "West Virginia"_L1,
    "Wisconsin"_L1,
    "Wyoming"_L1,
};

}  // namespace

std::span<const QLatin1StringView> stateNames() {
    return names;
}

}  // namespace data
