#include "qzbase/data/ElementVector.h"

#include <algorithm>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/persist/Record.h"

namespace qzbase {

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
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (std::int32_t i = 0; i < Size(); ++i)
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
