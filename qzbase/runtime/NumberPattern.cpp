#include "qzbase/runtime/NumberPattern.h"

#include <cmath>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/NamedNumberFormat.h"
#include "qzbase/runtime/NumberSection.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/PatternPieces.h"
#include "qzbase/runtime/PlacePattern.h"

namespace qzbase::runtime {

std::u16string FormatNumber(double pValue, std::u16string_view pPattern, const LocaleRules& pRules) {
  if (pPattern.empty() || !std::isfinite(pValue)) return NumberText(pValue, pRules);
  std::u16string text;
  if (AppendByPlaces(text, pValue, pPattern, pRules)) return text;
  if (const NamedNumberFormat named = FindNamedNumberFormat(pPattern); named != NamedNumberFormat::None)
    return FormatNamed(pValue, named, pRules);

  const PatternSections sections(pPattern);
  const std::size_t index = sections.IndexFor(pValue);
  const PatternKind kind = sections.Kind(index);
  if (kind == PatternKind::Date || kind == PatternKind::Text) Raise(RuntimeError::InvalidArgument);
  AppendNumber(text, DecimalDigits(pValue), sections.Section(index), index == 0 ? SignRule::Minus : SignRule::None,
               pRules);
  return text;
}

}  // namespace qzbase::runtime
