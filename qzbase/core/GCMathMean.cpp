#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase {
namespace {

bool HasInvalidValue(const CDblVector& pY) {
  for (std::int32_t i = 1; i <= pY.Size(); ++i)
    if (pY.Value(i) == kInvalidDouble) return true;
  return false;
}

// The mean of `pTerm` over all values, summed in the order of the vector.
template <class Term>
double MeanOf(const CDblVector& pY, Term pTerm) {
  double sum = 0;
  for (std::int32_t i = 1; i <= pY.Size(); ++i) sum = Add(sum, pTerm(pY.Value(i)));
  return sum / pY.Size();
}

}  // namespace

std::int32_t GCMath::CalcMean(const CDblVector& pY, double& pMean, double& pAbsStdDev) {
  pMean = pAbsStdDev = kInvalidDouble;
  try {
    if (pY.Size() < 1 || HasInvalidValue(pY)) return 0;
    pMean = MeanOf(pY, [](double pValue) { return pValue; });
    const double mean = pMean;
    pAbsStdDev = SquareRoot(MeanOf(pY, [mean](double pValue) {
      const double deviation = Add(mean, -pValue);
      return Multiply(deviation, deviation);
    }));
    return 0;
  } catch (const runtime::AutomationError& error) {
    return error.Number();
  }
}

}  // namespace qzbase
