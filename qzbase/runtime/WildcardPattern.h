// Whether a text has the form that a wildcard pattern describes. Case is ignored: single characters compare as texts.
//
//   *        any run of characters, an empty one too     [abc]   one of the characters
//   ?        one character                               [a-f]   one that stands between two in the locale's order
//   #        one digit                                   [!abc]  one that is none of them
//
//   "RUN7.DAT" fits "run#.dat", "*.DAT" and "[q-s]*"     [*], [?], [#] and [[] are the characters themselves
//
// A hyphen first or last in a list is a character, and so is "!" alone or not first; "[]" is nothing at all; "]"
// without a list is a character.
#pragma once

#include <string_view>

#include "qzbase/runtime/Locale.h"

namespace qzbase::runtime {

// Raises error 93 for a list that does not end and for a range from a later to an earlier character.
bool FitsWildcards(std::u16string_view pText, std::u16string_view pPattern, const LocaleRules& pRules = ThreadLocale());

}  // namespace qzbase::runtime
