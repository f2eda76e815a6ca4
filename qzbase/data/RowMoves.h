// An order of rows, prepared to be applied to one column after the other (VectorSort.h has `Rearrange` for one alone).
//
//   const RowMoves moves(SortedOrder(keys, true));
//   moves.Apply(names);
//   moves.Apply(prices);
//
// Rows move within their column, each of them once. Where the rows come from is known long before they are needed, so
// that columns that do not fit into the processor's cache are fetched ahead.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace qzbase {

class RowMoves {
 public:
  // `pOrder` is first the index of the row that goes first.
  explicit RowMoves(const std::vector<std::int32_t>& pOrder);

  template <class T>
  void Apply(std::span<T> pRows) const;

 private:
  // Rows that take each other's places in a ring: each takes over from the next one, the last one from the first.
  struct Ring {
    std::size_t begin;
    std::size_t end;
  };

  std::vector<std::int32_t> rows_;  // of one ring after the other
  std::vector<Ring> rings_;
};

template <class T>
void RowMoves::Apply(std::span<T> pRows) const {
  constexpr std::size_t kAhead = 16;
  const auto row = [&](std::size_t pStep) -> T& { return pRows[static_cast<std::size_t>(rows_[pStep])]; };
  for (const Ring& ring : rings_) {
    T first = std::move(row(ring.begin));
    for (std::size_t step = ring.begin; step + 1 < ring.end; ++step) {
      __builtin_prefetch(&row(std::min(step + kAhead, rows_.size() - 1)));
      row(step) = std::move(row(step + 1));
    }
    row(ring.end - 1) = std::move(first);
  }
}

}  // namespace qzbase
