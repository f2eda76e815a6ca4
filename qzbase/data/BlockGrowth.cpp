#include "qzbase/data/BlockGrowth.h"

#include <algorithm>

#include "qzbase/runtime/CheckedNarrow.h"

namespace qzbase {

using runtime::CheckedNarrow;

std::int32_t BlockCapacity(std::int32_t pCapacity, std::int32_t pSize, std::int32_t pBlockSize) {
  if (pBlockSize == 1) return std::max(pSize, 1);
  if (pBlockSize == 0) runtime::Raise(runtime::RuntimeError::DivisionByZero);
  const std::int32_t current = CheckedNarrow<std::int16_t>(std::int64_t{pCapacity} / pBlockSize);
  const std::int32_t last = CheckedNarrow<std::int32_t>(std::int64_t{pSize} - 1);
  const std::int32_t needed = std::max(CheckedNarrow<std::int32_t>(std::int64_t{last} / pBlockSize + 1), 1);
  return needed == current ? pCapacity : CheckedNarrow<std::int32_t>(std::int64_t{needed} * pBlockSize);
}

}  // namespace qzbase
