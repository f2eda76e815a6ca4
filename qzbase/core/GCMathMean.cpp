#include "qzbase/core/Arithmetic.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/runtime/Attempt.h"
#include "qzbase/runtime/Positions.h"

namespace qzbase {
namespace {

using runtime::Positions;
using runtime::Raise;
using runtime::RuntimeError;

bool HasInvalidValue(const CDblVector& pY) {
  for (const std::int32_t i : Positions(1, pY.Size()))
    if (pY.Value(i) == kInvalidDouble) return true;
  return false;
}

// The mean of `pTerm` over all values, summed in the order of the vector.
template <class Term>
double MeanOf(const CDblVector& pY, Term pTerm) {
  double sum = 0;
  for (const std::int32_t i : Positions(1, pY.Size())) sum = Add(sum, pTerm(pY.Value(i)));
  return sum / pY.Size();
}

}  // namespace

std::int32_t GCMath::CalcMean(const CDblVector* pY, double& pMean, double& pAbsStdDev) {
  pMean = pAbsStdDev = kInvalidDouble;
  const auto calculate = [&] {
    if (!pY) Raise(RuntimeError::ObjectNotSet);
    if (pY->Size() < 1 || HasInvalidValue(*pY)) return;
    pMean = MeanOf(*pY, [](double pValue) { return pValue; });
    const double mean = pMean;
    pAbsStdDev = SquareRoot(MeanOf(*pY, [mean](double pValue) {
      const double deviation = Add(mean, -pValue);
      return Multiply(deviation, deviation);
    }));
  };
  return runtime::Attempt(calculate).Error();
}

}  // namespace qzbase
