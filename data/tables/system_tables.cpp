#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

// The grid shows all columns as they stand in the file, so the owner stays between the secret and its state.
constexpr Column pinPassword[] = {
    {"Seq"_L1,          "Sequence:"_L1,        Whole},
    {"Account"_L1,      "Account:"_L1,         Text},
    {"UserName"_L1,     "User Name:"_L1,       Text},
    {"PIN_Password"_L1, "PIN or Password:"_L1, Text},
    {"PersonID"_L1,     {},                    Whole,     0, {},              {}, Nowhere},
    {"Encrypted"_L1,    {},                    Text,      0, {},              {}, Nowhere},
};

// BugNum is the key of the record that the file belongs to; FileName is unique over all rows.
constexpr Column attachments[] = {
    {"BugNum"_L1,      {}, Text},
    {"SeqNum"_L1,      {}, Whole},
    {"FileName"_L1,    {}, Text},
    {"filePath"_L1,    {}, Text},
    {"FileType"_L1,    {}, Text},
    {"fileDesc"_L1,    {}, Text},
    {"OldFileName"_L1, {}, Text},
};

constexpr Column luStates[] = {
    {"Name"_L1, {}, Text},
};

constexpr Table systemGroup[] = {
    {"PIN_Password"_L1, Keys::Owner, pinPassword},
    {"Attachments"_L1,  Keys::None,  attachments},
    {"LUStates"_L1,     Keys::None,  luStates},
};

// clang-format on

}  // namespace

std::span<const Table> systemTables() {
    return systemGroup;
}

}  // namespace data
