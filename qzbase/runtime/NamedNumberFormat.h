// The number formats that have a name: "Fixed", "Percent", "Yes/No". Names ignore case.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class NamedNumberFormat : std::uint8_t {
  None,
  GeneralNumber,
  Currency,
  Fixed,
  Standard,
  Percent,
  Scientific,
  YesNo,
  TrueFalse,
  OnOff,
};

// `None` for every other pattern.
NamedNumberFormat FindNamedNumberFormat(std::u16string_view pPattern) noexcept;

// `pFormat` must not be `None`.
std::u16string FormatNamed(double pValue, NamedNumberFormat pFormat, const LocaleRules& pRules);

// One of the two words of "Yes/No", "True/False" or "On/Off" in the language of a locale; in English where the language
// is not known.
std::u16string_view TruthWord(NamedNumberFormat pFormat, bool pValue, std::u16string_view pLocaleName) noexcept;

}  // namespace qzbase::runtime
