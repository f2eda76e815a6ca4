#include "qzbase/data/ElementVector.h"

#include <algorithm>
#include <concepts>
#include <span>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/persist/Record.h"

namespace qzbase {
namespace {

bool EqualNumbers(std::span<const std::int32_t> pLeft, std::span<const std::int32_t> pRight) {
  return std::equal(pLeft.begin(), pLeft.end(), pRight.begin());
}

// Looks for a way out after each stretch only, so that several elements are compared at a time.
bool EqualNumbers(std::span<const double> pLeft, std::span<const double> pRight) {
  constexpr std::size_t kStretch = 512;
  std::uint64_t different = 0;
  for (std::size_t begin = 0; begin < pLeft.size() && different == 0; begin += kStretch)
    for (std::size_t i = begin; i < std::min(begin + kStretch, pLeft.size()); ++i) different += pLeft[i] != pRight[i];
  return different == 0;
}

}  // namespace

template <class Self, class Element>
std::u16string ElementVector<Self, Element>::GetString() const {
  return runtime::WithMemory([this] {
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    runtime::CheckDemand(storage_.Reached(Size()) - storage_.Written(Size()), sizeof(char16_t));
    std::u16string text = u"(";
    const auto append = [&](const Type& pValue) {
      Element::AppendText(text, pValue, rules);
      text += u';';
    };
    storage_.Walk(Size(), append, [&](const Type& pZero, std::int32_t pCount) {
      const std::size_t before = text.size();
      append(pZero);
      runtime::RepeatEnd(text, text.size() - before, pCount - 1);
    });
    if (Size() > 0) text.pop_back();
    text += u')';
    return text;
  });
}

template <class Self, class Element>
std::int32_t ElementVector<Self, Element>::Index(Argument pValue, std::int32_t pStartIndex) const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  return storage_.Find(std::max(pStartIndex, 1) - 1, Size(),
                       [&](const Type& pElement) { return Element::Equal(pElement, pValue, rules); });
}

template <class Self, class Element>
void ElementVector<Self, Element>::CopyFrom(const Self& pSource) {
  LetSize(pSource.Size());
  CopySlots(pSource);
}

template <class Self, class Element>
void ElementVector<Self, Element>::CopySlots(const Self& pSource) {
  const ElementVector& source = pSource;
  storage_.CopySlots(source.storage_, source.Size());
}

template <class Self, class Element>
runtime::Ref<Self> ElementVector<Self, Element>::GetCopy() const {
  auto copy = runtime::New<Self>();
  copy->CopyFrom(static_cast<const Self&>(*this));
  return copy;
}

template <class Self, class Element>
bool ElementVector<Self, Element>::IsEqual(const Self& pCompare) const {
  return Size() == pCompare.Size() && EqualSlots(pCompare, Size());
}

// Slots that neither has written are equal.
template <class Self, class Element>
bool ElementVector<Self, Element>::EqualSlots(const Self& pCompare, std::int32_t pCount) const {
  const BlockStorage<Type>& compare = static_cast<const ElementVector&>(pCompare).storage_;
  std::int32_t i = 0;
  if constexpr (std::derived_from<Element, NumberElement<Type>>) {
    i = std::min(storage_.Written(pCount), compare.Written(pCount));
    if (!EqualNumbers(storage_.WrittenSlots(i), compare.WrittenSlots(i))) return false;
  }
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (const std::int32_t last = std::max(storage_.Written(pCount), compare.Written(pCount)); i < last; ++i)
    if (!Element::Equal(Value(i + 1), pCompare.Value(i + 1), rules)) return false;
  storage_.CheckCount(pCount);
  compare.CheckCount(pCount);
  return true;
}

template <class Self, class Element>
void ElementVector<Self, Element>::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  SaveRecord(pBuffer, pAppend, u"VE#1", [this](CBuffer& pTo) {
    pTo.AddLong(Size());
    SaveElements(pTo);
  });
}

template <class Self, class Element>
void ElementVector<Self, Element>::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  LoadRecord(pBuffer, pAppend, [this](CBuffer& pFrom) {
    LetSize(pFrom.NextCount(LeastBytes()));
    LoadElements(pFrom);
  });
}

template class ElementVector<CDblVector, DoubleElement>;
template class ElementVector<CLngVector, LongElement>;
template class ElementVector<CStrVector, TextElement>;
template class ElementVector<CBoolVector, BooleanElement>;
template class ElementVector<CVector, VariantElement>;

}  // namespace qzbase
