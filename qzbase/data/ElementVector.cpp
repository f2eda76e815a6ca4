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
    std::u16string text = u"(";
    for (std::int32_t i = 0; i < Size(); ++i) {
      if (i > 0) text += u';';
      Element::AppendText(text, Value(i + 1), rules);
    }
    text += u')';
    return text;
  });
}

template <class Self, class Element>
std::int32_t ElementVector<Self, Element>::Index(Argument pValue, std::int32_t pStartIndex) const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (std::int32_t i = std::max(pStartIndex, 1) - 1; i < Size(); ++i)
    if (Element::Equal(Value(i + 1), pValue, rules)) return i + 1;
  return -1;
}

template <class Self, class Element>
void ElementVector<Self, Element>::CopyFrom(const Self& pSource) {
  const ElementVector& source = pSource;
  LetSize(source.Size());
  storage_.CopyElements(source.storage_);
}

template <class Self, class Element>
runtime::Ref<Self> ElementVector<Self, Element>::GetCopy() const {
  auto copy = runtime::New<Self>();
  copy->CopyFrom(static_cast<const Self&>(*this));
  return copy;
}

template <class Self, class Element>
bool ElementVector<Self, Element>::IsEqual(const Self& pCompare) const {
  if (Size() != pCompare.Size()) return false;
  std::int32_t i = 0;
  if constexpr (std::derived_from<Element, NumberElement<Type>>) {
    const ElementVector& compare = pCompare;
    const auto left = storage_.WrittenElements();
    const auto right = compare.storage_.WrittenElements();
    const std::size_t count = std::min(left.size(), right.size());
    if (!EqualNumbers(left.first(count), right.first(count))) return false;
    i = static_cast<std::int32_t>(count);
  }
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (; i < Size(); ++i)
    if (!Element::Equal(Value(i + 1), pCompare.Value(i + 1), rules)) return false;
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
    LetSize(pFrom.NextCount());
    LoadElements(pFrom);
  });
}

template class ElementVector<CDblVector, DoubleElement>;
template class ElementVector<CLngVector, LongElement>;
template class ElementVector<CStrVector, TextElement>;
template class ElementVector<CBoolVector, BooleanElement>;
template class ElementVector<CVector, VariantElement>;

}  // namespace qzbase
