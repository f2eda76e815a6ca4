#include "qzbase/layout/CurveStyles.h"

#include <algorithm>
#include <array>

#include "qzbase/core/QZColor.h"
#include "qzbase/layout/LayoutBlocks.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Memory.h"

namespace qzbase {

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
  if (count_ < 0 && pCount > count_) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  const auto kept = static_cast<std::size_t>(std::max(pCount, 0));
  if (kept < assigned_.size()) assigned_.resize(kept);
  count_ = pCount;
}

TCurveStyle CurveStyles::Style(std::int32_t pIndex) const {
  if (pIndex > count_) return DefaultCurveStyle(pIndex);
  if (pIndex < 1) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  const auto offset = static_cast<std::size_t>(pIndex) - 1;
  return offset < assigned_.size() ? assigned_[offset] : DefaultCurveStyle(pIndex);
}

void CurveStyles::LetStyle(std::int32_t pIndex, const TCurveStyle& pStyle) {
  if (pIndex > count_) return;
  if (pIndex < 1) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  const TCurveStyle style = pStyle;
  runtime::WithMemory([&] {
    while (assigned_.size() < static_cast<std::size_t>(pIndex))
      assigned_.push_back(DefaultCurveStyle(static_cast<std::int32_t>(assigned_.size()) + 1));
  });
  assigned_[static_cast<std::size_t>(pIndex) - 1] = style;
}

void SaveField(CBuffer& pBuffer, const CurveStyles& pStyles) {
  pBuffer.AddLong(pStyles.count_);
  for (std::int32_t i = 0; i < pStyles.count_; ++i) SaveField(pBuffer, pStyles.Style(i + 1));
}

void LoadField(CBuffer& pBuffer, CurveStyles& pStyles) {
  pStyles.LetCount(pBuffer.NextCount());
  for (std::int32_t i = 0; i < pStyles.count_; ++i) {
    TCurveStyle style = pStyles.Style(i + 1);
    LoadField(pBuffer, style);
    pStyles.LetStyle(i + 1, style);
  }
}

bool EqualField(const CurveStyles& pLeft, const CurveStyles& pRight) {
  if (pLeft.count_ != pRight.count_) return false;
  const auto assigned = static_cast<std::int32_t>(std::max(pLeft.assigned_.size(), pRight.assigned_.size()));
  for (std::int32_t i = 1; i <= assigned; ++i)
    if (pLeft.Style(i) != pRight.Style(i)) return false;
  return true;
}

}  // namespace qzbase
