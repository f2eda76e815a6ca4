#include "qzbase/core/GCMath.h"

#include <cmath>
#include <limits>
#include <utility>

#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/ModMath.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {
namespace {

using runtime::Attempt;
using runtime::Raise;
using runtime::RuntimeError;

// The number through its display text. A whole number of at most 14 digits is its own display in every locale.
double Displayed(double pValue) {
  if (std::abs(pValue) < 1e14 && pValue == std::trunc(pValue)) return pValue + 0.0;  // -0 is displayed as 0
  return runtime::LeadingNumber(runtime::NumberText(pValue));
}

// Whether the whole part of a display is the number's own, whatever becomes of the decimals: the 15 digits are exact to
// a twentieth here and cannot reach the next whole number, and a number from a tenth up to 14 digits is never displayed
// in exponent form. The reader stops at a comma and goes on at a point; other delimiters are left to it.
bool WholePartIsDisplayed(double pValue) {
  const double decimals = std::abs(pValue - std::trunc(pValue));
  if (!(std::abs(pValue) < 1e14 && decimals >= 0.1 && decimals <= 0.9)) return false;
  const std::u16string& delimiter = runtime::ThreadLocale().decimal;
  return delimiter == u"." || delimiter == u",";
}

}  // namespace

double GCMath::ACos(double phi) {
  if (std::abs(phi) > 1) Raise(RuntimeError::InvalidArgument);  // the root would be of a negative number
  return std::atan(Divide(-phi, SquareRoot(-phi * phi + 1))) + PI() / 2;
}

double GCMath::Floor(double Value) {
  return std::trunc(WholePartIsDisplayed(Value) ? Value : Displayed(Value));
}

double GCMath::Ceil(double Value) {
  const double whole = Floor(Value);
  return whole == Value ? whole : whole + 1;
}

double GCMath::Round(double Value) {
  return std::trunc(Displayed(Value) + 0.5 * Sign(Value));
}

double GCMath::RoundUp(double Value, std::int32_t Decimals) {
  double power = 0;
  double result = 0;
  Attempt([&] { power = PowerOfTen(Decimals); });
  Attempt([&] { result = Divide(Ceil(Multiply(Value, power)), power); });
  return result;
}

double GCMath::RoundSigFigs(double Value, std::int32_t SigFigs) {
  std::int32_t magnitude = 0;
  double power = 0;
  double scaled = 0;
  double result = 0;
  if (Value != 0) Attempt([&] { magnitude = runtime::RoundToLong(std::trunc(Log10(std::abs(Value)))) + 1; });
  Attempt([&] { power = PowerOfTen(runtime::RoundToLong(static_cast<double>(SigFigs) - magnitude)); });
  Attempt([&] { scaled = Multiply(Value, power); });
  Attempt([&] { scaled = Floor(scaled + 0.5 * Sign(scaled)); });
  Attempt([&] { result = Divide(scaled, power); });
  return result;
}

double GCMath::Log10(double X) {
  return Logarithm(X) / std::log(10.0);
}

double GCMath::Pow(double Bases, double Expo) {
  return Exponential(Multiply(Logarithm(Bases), Expo));
}

const runtime::Variant& GCMath::Max(const runtime::Variant& val1, const runtime::Variant& val2) {
  return ModMath::Max(val1, val2);
}

const runtime::Variant& GCMath::Min(const runtime::Variant& val1, const runtime::Variant& val2) {
  return ModMath::Min(val1, val2);
}

void GCMath::Swap(runtime::Variant& val1, runtime::Variant& val2) {
  std::swap(val1, val2);
}

std::int32_t GCMath::Inc(std::int32_t& InVal) {
  if (InVal == std::numeric_limits<std::int32_t>::max()) Raise(RuntimeError::Overflow);
  return ++InVal;
}

std::int32_t GCMath::Dec(std::int32_t& InVal) {
  if (InVal == std::numeric_limits<std::int32_t>::min()) Raise(RuntimeError::Overflow);
  return --InVal;
}

}  // namespace qzbase
