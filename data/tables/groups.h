#pragma once

#include <span>

#include "data/table_definition.h"

namespace data {

/// Who a member of the family is and was: schooling, work, service, faith, homes.
std::span<const Table> personTables();
/// The family around a member, and what it has settled: clubs, funeral, will, safe deposit.
std::span<const Table> familyTables();
/// Shots and illnesses, the doctors of the family, and what they treated.
std::span<const Table> healthTables();
/// Money in banks.
std::span<const Table> bankingTables();
/// Securities, and the account that holds them.
std::span<const Table> investmentTables();
/// Retirement, social security and taxes.
std::span<const Table> retirementTables();
/// Homes, land and business sites.
std::span<const Table> realEstateTables();
/// What stands in and on a site, and what moves.
std::span<const Table> propertyTables();
/// Policies.
std::span<const Table> insuranceTables();
/// What is owed, either way.
std::span<const Table> obligationTables();
/// What belongs to the family as a whole.
std::span<const Table> referenceTables();
/// What the program itself needs: secrets, attached files, state names.
std::span<const Table> systemTables();

/// The hint of every field that says how often something is paid.
inline constexpr QLatin1StringView paymentModes{"Monthly, Quarterly, Semi-Annual, Annual, Other"};

}  // namespace data
