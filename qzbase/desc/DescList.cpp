#include "qzbase/desc/DescList.h"

#include <algorithm>
#include <vector>

#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/desc/CVarDescs.h"
#include "qzbase/persist/Record.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/CheckedNarrow.h"
#include "qzbase/runtime/Demand.h"
#include "qzbase/runtime/Memory.h"
#include "qzbase/runtime/Positions.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {
namespace {

// Six texts, each at least a count: what a descriptor's record has in every version, with markers or without.
constexpr std::int32_t kLeastRecord = 24;

}  // namespace

template <class Self, class Traits>
auto DescList<Self, Traits>::At(std::int32_t pIndex) const -> Element& {
  const runtime::Ref<Element>& desc = DescRef(pIndex);
  if (!desc) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
  return *desc;
}

template <class Self, class Traits>
void DescList<Self, Traits>::Resize(std::int32_t pSize) {
  runtime::WithMemory([&] { slots_.Elements().resize(static_cast<std::size_t>(std::max(pSize, 1))); });
  size_ = pSize;
}

// Only slots behind the old end are visited where no other one can hold none: growing one by one stays linear.
template <class Self, class Traits>
void DescList<Self, Traits>::LetSize(std::int32_t pSize) {
  const std::int32_t filled = mayHoldNone_ ? 0 : std::max(size_, 0);
  runtime::CheckDemand(std::int64_t{pSize} - std::max(size_, 0), sizeof(Element));
  if (pSize < 1) slots_[1] = nullptr;  // its slot stays
  Resize(pSize);
  mayHoldNone_ = true;
  runtime::WithMemory([&] {
    for (const std::int32_t i : runtime::Positions(filled + 1, pSize))
      if (!slots_[i]) slots_[i] = runtime::New<Element>();
  });
  mayHoldNone_ = false;
}

template <class Self, class Traits>
void DescList<Self, Traits>::SetDesc(std::int32_t pIndex, runtime::Ref<Element> pDesc) {
  runtime::Ref<Element>& slot = slots_[pIndex];
  mayHoldNone_ |= !pDesc;
  slot = std::move(pDesc);
}

template <class Self, class Traits>
void DescList<Self, Traits>::MoveDesc(std::int32_t pOldPos, std::int32_t pNewPos) {
  if (pOldPos == pNewPos) return;
  DescRef(pOldPos);  // error 9 before anything moves
  if (pOldPos > pNewPos)
    for (std::int32_t k = pOldPos - 1; k >= pNewPos; --k) slots_[k] = slots_[k + 1];
  else
    for (std::int32_t k = pOldPos; k < pNewPos; ++k) slots_[k] = slots_[k + 1];
}

// A list of a negative size grows too, but to no slot that could take the descriptor.
template <class Self, class Traits>
std::int32_t DescList<Self, Traits>::InsertDesc(const Element& pDesc, std::int32_t pAtPos) {
  runtime::Ref<Element> copy = pDesc.GetCopy();
  Resize(runtime::CheckedNarrow<std::int32_t>(std::int64_t{size_} + 1));
  if (size_ < 1) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  const std::int32_t position = pAtPos < 1 || pAtPos > size_ ? size_ : pAtPos;
  std::vector<runtime::Ref<Element>>& slots = slots_.Elements();
  std::rotate(slots.begin() + position - 1, slots.end() - 1, slots.end());
  slots_[position] = std::move(copy);
  return position;
}

template <class Self, class Traits>
void DescList<Self, Traits>::DeleteDesc(std::int32_t pIndex) {
  if (size_ < 1) return;
  for (std::int32_t k = pIndex; k < size_; ++k) slots_[k] = std::move(slots_[k + 1]);
  LetSize(size_ - 1);
}

template <class Self, class Traits>
std::int32_t DescList<Self, Traits>::Index(std::u16string_view pID) const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (const std::int32_t i : runtime::Positions(1, size_))
    if (runtime::EqualText(At(i).ID(), pID, rules)) return i;
  return -1;
}

template <class Self, class Traits>
std::u16string DescList<Self, Traits>::GetString() const {
  return runtime::WithMemory([this] {
    std::u16string text;
    for (const std::int32_t i : runtime::Positions(1, size_)) {
      if (i > 1) text += u';';
      text += u'(' + At(i).GetString() + u')';
    }
    return text;
  });
}

template <class Self, class Traits>
void DescList<Self, Traits>::CopyFrom(const Self& pSource) {
  LetSize(pSource.Size());
  for (const std::int32_t i : runtime::Positions(1, size_)) At(i).CopyFrom(pSource.At(i));
}

template <class Self, class Traits>
runtime::Ref<Self> DescList<Self, Traits>::GetCopy() const {
  auto copy = runtime::New<Self>();
  copy->CopyFrom(static_cast<const Self&>(*this));
  return copy;
}

template <class Self, class Traits>
bool DescList<Self, Traits>::IsEqual(const Self& pCompare) const {
  if (size_ != pCompare.Size()) return false;
  for (const std::int32_t i : runtime::Positions(1, size_))
    if (!At(i).IsEqual(pCompare.At(i))) return false;
  return true;
}

template <class Self, class Traits>
void DescList<Self, Traits>::SaveToBuffer(CBuffer* pBuffer, bool pAppend) {
  SaveRecord(pBuffer, pAppend, Traits::kTag, [this](CBuffer& buffer) {
    buffer.AddLong(size_);
    for (const std::int32_t i : runtime::Positions(1, size_)) At(i).SaveToBuffer(&buffer, true);
  });
}

template <class Self, class Traits>
void DescList<Self, Traits>::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& buffer) {
    LetSize(buffer.NextCount(kLeastRecord));
    for (const std::int32_t i : runtime::Positions(1, size_)) At(i).LoadFromBuffer(&buffer, true);
  });
}

template class DescList<CVarDescs, VarDescTraits>;
template class DescList<CEntryDescs, EntryDescTraits>;

}  // namespace qzbase
