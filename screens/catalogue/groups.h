#pragma once

#include <span>

#include "screens/catalogue/screen_definition.h"

namespace screens {

// The owned screens, grouped as their tables are.

std::span<const ScreenDefinition> personEntries();
std::span<const ScreenDefinition> familyEntries();
std::span<const ScreenDefinition> healthEntries();
std::span<const ScreenDefinition> bankingEntries();
std::span<const ScreenDefinition> investmentEntries();
std::span<const ScreenDefinition> retirementEntries();
std::span<const ScreenDefinition> realEstateEntries();
std::span<const ScreenDefinition> propertyEntries();
std::span<const ScreenDefinition> insuranceEntries();
std::span<const ScreenDefinition> obligationEntries();

// The screens without an owner of their own.

std::span<const ScreenDefinition> referenceEntries();
std::span<const ScreenDefinition> childEntries();

}  // namespace screens
