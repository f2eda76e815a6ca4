// Implementation notes. The order of the letters is the locale library's, with the locale's own rules; everything else
// follows the platform on which the stored lists were sorted, so that a list sorted there is sorted here:
// - punctuation and symbols stand in an order of their own, before the digits;
// - hyphen, apostrophe and controls are left out at first and break ties (SortOrder.h);
// - accents have an order of their own, and in French the last difference of accents decides;
// - ligatures equal their letters.
#include "qzbase/os/Collation.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include <unicode/uloc.h>

#include "qzbase/os/ThreadSlot.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/os/posix/IcuHandle.h"
#include "qzbase/os/posix/SortOrder.h"

namespace qzbase::os {
namespace {

// Rules in the notation of the locale library: "&" resets, "<" differs as a letter, "<<" as an accent, "<<<" as case,
// "=" not at all. These come before the locale's own rules, which may put the letter elsewhere (a Danish "æ").
constexpr std::u16string_view kLetterRules =
    // The accents; further ones follow in the library's order.
    u"&[before "
    u"2]\u0301<<\u030D&\u0301<<\u0300<<\u0307<<\u0302<<\u0308<<\u030C<<\u0306<<\u0304<<\u0303<<\u030A<<\u0328<<\u0327<<"
    u"\u030B"
    u"<<\u0335=\u0336<<\u0337<<\u0338"
    // Letters with a stroke are letters with an accent.
    u"&b\u0338=ƀ<<ƅ&B\u0338=Ƀ<<Ƅ&c\u0338=ȼ&C\u0338=Ȼ<<Ɔ&d\u0338=đ<<ƌ<<ð<<ƍ&D\u0338=Đ<<Ƌ<<Ɗ<<Ð&g\u0338=ǥ&G\u0338=Ǥ&"
    u"h\u0338=ħ"
    u"&H\u0338=Ħ&I\u0338=Ɨ&l\u0338=ƚ<<ł&L\u0338=Ƚ<<Ł&o\u0338=ø<<ƣ&O\u0338=Ø<<Ƣ&s\u0338<<ƨ&S\u0338<<Ƨ&z\u0338=ƶ&Z\u0338="
    u"Ƶ"
    // Ligatures.
    u"&ae=æ&AE=Æ&ij=ĳ&IJ=Ĳ&ff=ﬀ&fi=ﬁ&fl=ﬂ"
    // Dotless letters, signs made of letters, superscripts and fractions.
    u"&i\u030D<<ı&j\u030D<<ȷ&k\u030D<<ĸ&l\u0308<<ŀ&L\u0308<<Ŀ&n\u0338<<ŉ&a\u030D<<ª&o\u030D<<º&1\u030D<<¹&2=ƻ&2\u030D<<"
    u"²&3\u030D<<³&5=ƽ<<<Ƽ&n<№&t<™&0<¼<½<¾";

// These come after the locale's own rules and hold in every locale.
constexpr std::u16string_view kCommonRules = u"&oe=œ&OE=Œ&ss=ß&SS=ẞ&th=þ&TH=Þ&i<<<I&σ<<<ς";

struct LanguageRules {
  std::string_view language;
  std::u16string_view rules;
};

// The library's Swedish and Finnish rules also move letters that belong to neither language; the platform leaves them
// with their base letters.
constexpr std::u16string_view kNordicRules = u"&ae=æ&AE=Æ&o\u0307<<ô&O\u0307<<Ô&e\u030A<<ę&E\u030A<<Ę";
constexpr LanguageRules kLanguageRules[] = {{"sv", kNordicRules}, {"fi", kNordicRules}};

// Every character of a rule is quoted: most of the symbols have a meaning in the notation.
void AppendQuoted(std::u16string& pRules, std::u16string_view pRelation, char16_t pUnit) {
  (pRules += pRelation) += u'\\';
  pRules += pUnit;
}

std::u16string SymbolRules() {
  std::u16string rules = u"&[last variable]";
  for (const char16_t symbol : kSymbolOrder) AppendQuoted(rules, u"<", symbol);
  for (char16_t control = 0x80; control < 0xA0; ++control) AppendQuoted(rules, control == 0x80 ? u"<" : u"<<", control);
  rules += u"&\\ =\u205F<<\u202F&\\!<<\u203C<<\u2049&\\*<<\u2051&\\?<<\u2047<<\u2048&\\.=\u2024";
  rules += u"&\u2032<<\u2033<<\u2036<<\u2034<<\u2037&\u2030<<\u2031";
  return rules;
}

std::u16string LightRules() {
  std::u16string rules;
  for (const char16_t light : kLightOrder)
    if (light >= 0x20 && light != 0x7F) AppendQuoted(rules, u"&\\\u0001=", light);
  return rules;
}

CollatorHandle WithRules(UCollator* pLocal, std::string_view pLanguage) {
  std::int32_t length = 0;
  const UChar* local = ucol_getRules(pLocal, &length);
  std::u16string rules = SymbolRules() + LightRules();
  rules += kLetterRules;
  rules.append(local, static_cast<std::size_t>(length));
  rules += kCommonRules;
  for (const LanguageRules& row : kLanguageRules)
    if (row.language == pLanguage) rules += row.rules;
  UErrorCode status = U_ZERO_ERROR;
  return CollatorHandle(
      ucol_openRules(rules.data(), static_cast<std::int32_t>(rules.size()), UCOL_ON, UCOL_TERTIARY, nullptr, &status));
}

// Whether the locale's own rules leave the letters A to Z alone (Danish "aa" and Czech "ch" are letters of their own).
bool KeepsAscii(UCollator* pLocal) {
  UErrorCode status = U_ZERO_ERROR;
  if (ucol_getAttribute(pLocal, UCOL_CASE_FIRST, &status) == UCOL_UPPER_FIRST) return false;
  const CharacterSetHandle tailored(ucol_getTailoredSet(pLocal, &status));
  if (U_FAILURE(status)) return false;
  const std::int32_t items = uset_getItemCount(tailored.get());
  for (std::int32_t i = 0; i < items; ++i) {
    UChar32 first = 0;
    UChar32 last = 0;
    UChar text[32];
    status = U_ZERO_ERROR;
    const std::int32_t length = uset_getItem(tailored.get(), i, &first, &last, text, 32, &status);
    if (U_FAILURE(status)) continue;
    // A range of characters has no text.
    if (length == 0 ? first < 0x80 : IsAscii({text, static_cast<std::size_t>(length)})) return false;
  }
  return true;
}

// The order of one locale, on one thread. The collators take milliseconds to make and are made when a text needs them,
// which plain ASCII does not.
class LocaleOrder {
 public:
  explicit LocaleOrder(std::u16string_view pName) : name_(pName) {
    char locale[ULOC_FULLNAME_CAPACITY] = "";
    char language[ULOC_LANG_CAPACITY] = "";
    UErrorCode status = U_ZERO_ERROR;
    uloc_forLanguageTag(ToUtf8(pName).c_str(), locale, ULOC_FULLNAME_CAPACITY, nullptr, &status);
    uloc_getLanguage(locale, language, ULOC_LANG_CAPACITY, &status);
    language_ = language;
    // This variant has no order of its own but that of the codes, capitals first; here case is the same everywhere.
    if (char* const variant = std::strstr(locale, "_POSIX")) *variant = '\0';
    status = U_ZERO_ERROR;
    // An empty name must not mean the default locale of the process.
    local_.reset(ucol_open(locale[0] == '\0' ? "root" : locale, &status));
    if (local_) keepsAscii_ = KeepsAscii(local_.get());
  }

  std::u16string_view Name() const { return name_; }

  int Compare(std::u16string_view pLeft, std::u16string_view pRight, bool pIgnoreCase) {
    if (keepsAscii_ && IsAscii(pLeft) && IsAscii(pRight)) return CompareAscii(pLeft, pRight, pIgnoreCase);
    if (local_) MakeCollators();
    const UCollator* collator = (pIgnoreCase ? caseless_ : cased_).get();
    if (collator == nullptr) return CompareUnits(pLeft, pRight);
    const UCollationResult result = ucol_strcoll(collator, pLeft.data(), static_cast<std::int32_t>(pLeft.size()),
                                                 pRight.data(), static_cast<std::int32_t>(pRight.size()));
    if (result != UCOL_EQUAL) return result == UCOL_LESS ? -1 : 1;
    return CompareLight(pLeft, pRight);
  }

 private:
  void MakeCollators() {
    cased_ = WithRules(local_.get(), language_);
    if (!cased_) cased_ = std::move(local_);
    local_.reset();
    UErrorCode status = U_ZERO_ERROR;
    ucol_setAttribute(cased_.get(), UCOL_NORMALIZATION_MODE, UCOL_ON, &status);
    if (language_ == "fr") ucol_setAttribute(cased_.get(), UCOL_FRENCH_COLLATION, UCOL_ON, &status);
    caseless_.reset(ucol_clone(cased_.get(), &status));
    if (caseless_) ucol_setStrength(caseless_.get(), UCOL_SECONDARY);
  }

  // Without any locale data there is still an order.
  static int CompareUnits(std::u16string_view pLeft, std::u16string_view pRight) {
    const int order = pLeft.compare(pRight);
    return order < 0 ? -1 : order > 0 ? 1 : 0;
  }

  std::u16string name_;
  std::string language_;
  CollatorHandle local_;  // the locale as the library has it; moved on when the collators are made
  CollatorHandle cased_;
  CollatorHandle caseless_;
  bool keepsAscii_ = true;
};

struct LocaleOrders {
  std::vector<LocaleOrder> orders;  // the one used last in front

  LocaleOrder& Of(std::u16string_view pName) {
    if (orders.empty() || orders.front().Name() != pName) BringToFront(pName);
    return orders.front();
  }

 private:
  void BringToFront(std::u16string_view pName) {
    auto found = std::find_if(orders.begin(), orders.end(), [&](const LocaleOrder& o) { return o.Name() == pName; });
    if (found == orders.end()) found = orders.insert(found, LocaleOrder(pName));
    std::rotate(orders.begin(), found, found + 1);
  }
};

}  // namespace

int CompareText(std::u16string_view pLeft, std::u16string_view pRight, CaseRule pCase,
                std::u16string_view pLocaleName) {
  if (pLeft == pRight) return 0;
  static PerThread<LocaleOrders> orders;
  return orders->Of(pLocaleName).Compare(pLeft, pRight, pCase == CaseRule::IgnoreCase);
}

}  // namespace qzbase::os
