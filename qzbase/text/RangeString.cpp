#include "qzbase/text/RangeString.h"

#include <cmath>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/text/ModString.h"

namespace qzbase::ModString {
namespace {

// The first two pieces between the brackets of an interval, which may have more.
struct Bounds {
  std::u16string_view lower;
  std::u16string_view upper;
};

// False for what does not stand in brackets or has no delimiter between them.
bool TakeBounds(std::u16string_view pInterval, Bounds& pBounds) {
  if (!pInterval.starts_with(u'[') || !pInterval.ends_with(u']')) return false;
  std::u16string_view inside = pInterval.substr(1, pInterval.size() - 2);
  if (inside.find(u';') == std::u16string_view::npos) return false;
  pBounds.lower = TakeToken(inside, u";");
  pBounds.upper = TakeToken(inside, u";");
  return true;
}

// Whether the number's text is that of a whole number. Texts are made only where binary fractions leave it open.
bool ShowsAsWhole(double pNumber) {
  const double whole = std::nearbyint(pNumber);
  return whole == pNumber || runtime::NumberText(whole) == runtime::NumberText(pNumber);
}

}  // namespace

bool IsInRange(double Value, std::u16string_view Range, std::u16string_view Step) {
  if (Range.empty()) return true;
  if (!Range.starts_with(u'[')) return runtime::LeadingNumber(Range) == Value;
  Bounds bounds;
  if (!TakeBounds(Range, bounds)) return false;
  const double lower = runtime::LeadingNumber(bounds.lower);
  const double upper = runtime::LeadingNumber(bounds.upper);
  if (lower > Value || upper < Value) return false;
  const double step = runtime::LeadingNumber(Step);
  return step == 0 || ShowsAsWhole(Divide(Add(Value, -lower), step));
}

}  // namespace qzbase::ModString
