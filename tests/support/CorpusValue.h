// The values of the tables as variants and back: "R8:<bits>", "DATE:<bits>", "BSTR:text", "BOOL:-1", "I4:5", "EMPTY"
// ...
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::tests {

// Nothing for the kinds that the library's variants do not have (currency, decimal, error, unsigned and 64-bit
// numbers); a byte is an integer.
std::optional<runtime::Variant> ParseCorpusValue(std::string_view pText);

std::string CorpusValueText(const runtime::Variant& pValue);

// The text that a call answers, or "error 13".
template <class Call>
std::string TextOrError(Call&& pCall) {
  try {
    return pCall();
  } catch (const runtime::AutomationError& error) {
    return "error " + std::to_string(error.Number());
  }
}

}  // namespace qzbase::tests
