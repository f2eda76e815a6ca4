// The values of the tables as variants and back: "R8:<bits>", "DATE:<bits>", "BSTR:text", "BOOL:-1", "I4:5", "EMPTY"
// ...
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "qzbase/runtime/Variant.h"

namespace qzbase::tests {

// Nothing for the kinds that the library's variants do not have (currency, decimal, error, bytes, unsigned and 64-bit
// numbers).
std::optional<runtime::Variant> ParseCorpusValue(std::string_view pText);

std::string CorpusValueText(const runtime::Variant& pValue);

}  // namespace qzbase::tests
