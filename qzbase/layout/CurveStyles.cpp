#include "qzbase/layout/CurveStyles.h"

#include <algorithm>
#include <array>

#include "qzbase/core/QZColor.h"
#include "qzbase/layout/LayoutBlocks.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"

namespace qzbase {
namespace {

// Two tags of seven and six characters, five longs.
constexpr std::int32_t kStyleRecord = (5 + 7) + 5 * 5 + (5 + 6);

}  // namespace

std::int32_t DefaultColor(std::int32_t pIndex) {
  constexpr std::array<std::int32_t, 10> kCycle = {qzBlue,       qzGreen,    qzRed,       qzCyan,    qzPurple,
                                                   qzDarkYellow, qzDarkBlue, qzDarkGreen, qzDarkRed, qzLightRed};
  const auto offset = runtime::CheckedNarrow<std::int32_t>(std::int64_t{pIndex} - 1);
  const std::int32_t place = pIndex == 0 ? 0 : offset % static_cast<std::int32_t>(kCycle.size());
  return place < 0 ? qzBLACK : kCycle[static_cast<std::size_t>(place)];
}

TCurveStyle DefaultCurveStyle(std::int32_t pIndex) {
  return {.Pattern = 2, .Width = 1, .Color = DefaultColor(pIndex), .Symbol = 1, .SymbolSize = 5};
}

void CurveStyles::LetCount(std::int32_t pCount) {
  if (Count() < 0 && pCount > Count()) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  if (pCount < 1) slots_.Store(1, {});  // its slot stays
  slots_.LetSize(pCount);
}

TCurveStyle CurveStyles::Style(std::int32_t pIndex) const {
  if (pIndex > Count()) return DefaultCurveStyle(pIndex);
  if (pIndex < 1) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  const std::optional<TCurveStyle>& style = slots_.Slot(pIndex);
  return style ? *style : DefaultCurveStyle(pIndex);
}

void CurveStyles::LetStyle(std::int32_t pIndex, const TCurveStyle& pStyle) {
  if (pIndex > Count()) return;
  slots_.Store(pIndex, pStyle);
}

TCurveStyle& CurveStyles::Entry(std::int32_t pIndex) {
  std::optional<TCurveStyle>& entry = slots_.FirstSlots(pIndex).back();
  if (!entry) entry = DefaultCurveStyle(pIndex);
  return *entry;
}

void SaveField(CBuffer& pBuffer, const CurveStyles& pStyles) {
  pBuffer.AddLong(pStyles.Count());
  pBuffer.ExpectRecords(std::max(pStyles.Count(), 0), kStyleRecord);
  for (std::int32_t i = 0; i < pStyles.Count(); ++i) SaveField(pBuffer, pStyles.Style(i + 1));
}

void LoadField(CBuffer& pBuffer, CurveStyles& pStyles) {
  pStyles.LetCount(pBuffer.NextCount());
  for (std::int32_t i = 1; i <= pStyles.Count(); ++i) LoadField(pBuffer, pStyles.Entry(i));
}

void CopyField(CurveStyles& pTo, const CurveStyles& pFrom) {
  pTo.LetCount(pFrom.Count());
  runtime::WithMemory([&] { pTo.slots_ = pFrom.slots_; });
}

bool EqualField(const CurveStyles& pLeft, const CurveStyles& pRight) {
  if (pLeft.Count() != pRight.Count()) return false;
  const std::int32_t count = pLeft.Count();
  for (std::int32_t i = 1; i <= std::max(pLeft.slots_.Written(count), pRight.slots_.Written(count)); ++i)
    if (pLeft.Style(i) != pRight.Style(i)) return false;
  return true;
}

}  // namespace qzbase
