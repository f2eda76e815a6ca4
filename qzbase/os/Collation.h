// The order of texts in a locale: dictionary order, in which "a" < "A" < "b" and accents decide late.
#pragma once

#include <cstdint>
#include <string_view>

namespace qzbase::os {

enum class CaseRule : std::uint8_t { CaseSensitive, IgnoreCase };

// -1, 0 or 1 as `pLeft` sorts before, with or after `pRight` in the locale named `pLocaleName` (BCP 47; empty: the
// invariant order). Hyphen and apostrophe weigh less than everything else, so that "coop" and "co-op" stand together.
int CompareText(std::u16string_view pLeft, std::u16string_view pRight, CaseRule pCase, std::u16string_view pLocaleName);

}  // namespace qzbase::os
