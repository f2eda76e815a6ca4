#include "qzbase/data/RowMoves.h"

namespace qzbase {

RowMoves::RowMoves(const std::vector<std::int32_t>& pOrder) {
  std::vector<bool> isPlaced(pOrder.size());
  rows_.reserve(pOrder.size());
  for (std::size_t start = 0; start < pOrder.size(); ++start) {
    const std::size_t begin = rows_.size();
    for (std::size_t row = start; !isPlaced[row]; row = static_cast<std::size_t>(pOrder[row])) {
      isPlaced[row] = true;
      rows_.push_back(static_cast<std::int32_t>(row));
    }
    if (rows_.size() > begin + 1)
      rings_.push_back({begin, rows_.size()});
    else
      rows_.resize(begin);  // the row stays where it is, or has been placed
  }
}

}  // namespace qzbase
