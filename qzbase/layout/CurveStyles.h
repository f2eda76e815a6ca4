// The styles of a graph's curves: a list counted from 1 that reads as a cycle of ten colours beyond its end.
//
// Only entries that were assigned, and those before them, take memory; all others are the defaults of their indices. To
// save more than fit into a buffer is error 6 before the first one is written; to assign one so far behind the others
// that a gibibyte would lie between them is error 7.
#pragma once

#include <cstdint>
#include <optional>

#include "qzbase/data/BlockStorage.h"
#include "qzbase/layout/TCurveStyle.h"
#include "qzbase/persist/CBuffer.h"

namespace qzbase {

// The colour of a curve: ten that repeat, blue first. Index 0 is blue too, as is one below it whose distance from 1 is
// a multiple of ten; all others below 1 are black. Raises error 6 for the most negative index.
std::int32_t DefaultColor(std::int32_t pIndex);
TCurveStyle DefaultCurveStyle(std::int32_t pIndex);

class CurveStyles {
 public:
  CurveStyles() { slots_.LetSize(1); }

  std::int32_t Count() const noexcept { return slots_.Size(); }

  // Shrinking forgets what is cut off; grown entries are defaults. A count of 0 or less is kept as it is; growing from
  // a negative one raises error 9, since there is no entry at 0.
  void LetCount(std::int32_t pCount);

  // Beyond the count the default style, and error 9 for an index below 1 that is not beyond it.
  TCurveStyle Style(std::int32_t pIndex) const;
  // Beyond the count nothing happens: the list does not grow by assignment.
  void LetStyle(std::int32_t pIndex, const TCurveStyle& pStyle);

  friend void SaveField(CBuffer& pBuffer, const CurveStyles& pStyles);
  friend void LoadField(CBuffer& pBuffer, CurveStyles& pStyles);
  // Takes the count as `LetCount` does, and then the entries.
  friend void CopyField(CurveStyles& pTo, const CurveStyles& pFrom);
  friend bool EqualField(const CurveStyles& pLeft, const CurveStyles& pRight);

 private:
  // An entry up to the count, in memory from now on.
  TCurveStyle& Entry(std::int32_t pIndex);

  BlockStorage<std::optional<TCurveStyle>> slots_{1};  // none where nothing was assigned
};

}  // namespace qzbase
