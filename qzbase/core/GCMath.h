// Rounding, logarithm, power, comparison and statistics.
//
// The rounding members are not the textbook's, and hosts depend on how they round: they take a number as it is
// displayed (15 significant digits, in the thread's locale), read that text with "." as the only decimal point, and cut
// towards zero.
//
//   Floor(2.7)   2        Floor(-2.7)  -2       Floor(2.9999999999999996)  3: it is displayed as "3"
//   Ceil(2.1)    3        Ceil(-2.5)   -1       Floor(1.5E+20)             1 where the display is "1,5E+20"
//   Round(2.5)   3        Round(-2.5)  -3       Round(2.7)                 2 where the display is "2,7"
//
// Arithmetic fails as core/Arithmetic.h says: error 5, 6 or 11.
#pragma once

#include <bit>
#include <cstdint>

#include "qzbase/runtime/Object.h"

namespace qzbase {

class CDblVector;

class GCMath : public runtime::Object {
 public:
  // The arc cosine by way of the arc tangent: error 11 at exactly 1 and -1, error 5 outside.
  static double ACos(double phi);

  // The displayed number cut towards zero; the same, one more unless that is the value itself; and the displayed number
  // with halves rounded away from zero. Raise error 6 for numbers whose display is too large to be read back.
  static double Floor(double Value);
  static double Ceil(double Value);
  static double Round(double Value);

  // `Ceil` at so many decimals (negative: before the point), and rounding to significant figures. Neither raises: a
  // step that fails leaves what it would set as it was, 0 at first.
  //
  // The figures are counted from the logarithm cut towards zero, so that a magnitude below 1 keeps one fewer (0.0123
  // with 2 figures is 0.01), and so do exact powers of ten whose logarithm falls short (that of 1000).
  static double RoundUp(double Value, std::int32_t Decimals);
  static double RoundSigFigs(double Value, std::int32_t SigFigs);

  // The natural logarithm divided by that of 10. Error 5 for 0 and below.
  static double Log10(double X);

  // e raised to (ln Bases times Expo). Error 5 for a base of 0 and below.
  static double Pow(double Bases, double Expo);

  // See ModMath.h.
  static const runtime::Variant& Max(const runtime::Variant& val1, const runtime::Variant& val2);
  static const runtime::Variant& Min(const runtime::Variant& val1, const runtime::Variant& val2);

  static void Swap(runtime::Variant& val1, runtime::Variant& val2);

  // One more and one less, in place; the new value. Error 6 at the end of the range leaves it as it was.
  static std::int32_t Inc(std::int32_t& InVal);
  static std::int32_t Dec(std::int32_t& InVal);

  // Exactly these bits, which are 3.14159265358979: results are compared with stored ones to the last bit.
  static constexpr double PI() { return std::bit_cast<double>(std::uint64_t{0x400921FB54442D11}); }

  // Mean and population standard deviation. Both are the invalid double for a vector that is empty or holds an invalid
  // double. Returns 0, or the number of the runtime error that stopped it (91 for an unset vector); raises nothing.
  static std::int32_t CalcMean(const CDblVector* pY, double& pMean, double& pAbsStdDev);
};

}  // namespace qzbase
