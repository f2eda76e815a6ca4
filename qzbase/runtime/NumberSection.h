// Prints a number through one section of a number pattern.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/runtime/DecimalDigits.h"
#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

enum class SignRule : std::uint8_t {
  Minus,  // a negative number gets a "-" before everything else
  None,   // the section says itself what a negative number looks like
};

// Appends the text of a finite number. A section without digit places appends its literals only.
void AppendNumber(std::u16string& pText, DecimalDigits pDigits, std::u16string_view pSection, SignRule pSign,
                  const LocaleRules& pRules);

}  // namespace qzbase::runtime
