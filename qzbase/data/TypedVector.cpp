#include "qzbase/data/TypedVector.h"

#include <algorithm>
#include <concepts>
#include <type_traits>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/SavedSlots.h"
#include "qzbase/runtime/Attempt.h"

namespace qzbase {
namespace {

constexpr char16_t kDelimiter = u';';

// The text without its first and last character where the first one is `pOpening`.
std::u16string_view WithoutBrackets(std::u16string_view pText, std::u16string_view pOpening) {
  if (pText.empty() || !runtime::EqualText(pText.substr(0, 1), pOpening)) return pText;
  pText.remove_prefix(1);
  return pText.substr(0, pText.size() - std::min<std::size_t>(pText.size(), 1));
}

// An empty text has no pieces; any other has one more than delimiters.
std::int32_t CountPieces(std::u16string_view pText) {
  return pText.empty() ? 0 : static_cast<std::int32_t>(std::count(pText.begin(), pText.end(), kDelimiter)) + 1;
}

std::u16string_view TakePiece(std::u16string_view& pText) {
  const std::u16string_view piece = pText.substr(0, pText.find(kDelimiter));
  pText.remove_prefix(std::min(piece.size() + 1, pText.size()));
  return piece;
}

}  // namespace

template <class Self, class Element>
void TypedVector<Self, Element>::SetFromArray(const runtime::Array<Type>& InArray) {
  if (!InArray.IsAllocated()) runtime::Raise(runtime::RuntimeError::SubscriptOutOfRange);
  LetSize(InArray.Size());
  storage_.CopySlots(InArray.Elements());
}

template <class Self, class Element>
void TypedVector<Self, Element>::SetFromString(std::u16string_view pString) {
  // A text of texts may lie in a slot of this vector.
  using Text = std::conditional_t<std::same_as<Type, std::u16string>, std::u16string, std::u16string_view>;
  runtime::Attempt([&] {  // what was reached before an error stays
    const Text text(pString);
    std::u16string_view rest = WithoutBrackets(WithoutBrackets(text, u"("), u"{");
    const std::int32_t count = CountPieces(rest);
    runtime::Attempt([&] { LetSize(count); });  // as many slots as there are take their pieces
    const runtime::LocaleRules& rules = runtime::ThreadLocale();
    for (std::int32_t i = 1; i <= std::min(count, storage_.Capacity()); ++i) {
      Type value{};
      if (Element::Read(TakePiece(rest), value, rules)) storage_.Store(i, std::move(value));
    }
  });
}

template <class Self, class Element>
void TypedVector<Self, Element>::SaveElements(CBuffer& pBuffer) const {
  SaveSlots(pBuffer, storage_, kLeastRecord<Type>, [&](const Type& pValue) { (pBuffer.*Element::kAdd)(pValue); });
}

template <class Self, class Element>
void TypedVector<Self, Element>::LoadElements(CBuffer& pBuffer) {
  for (std::int32_t i = 0; i < Size(); ++i) storage_.Store(i + 1, (pBuffer.*Element::kNext)());
}

template class TypedVector<CDblVector, DoubleElement>;
template class TypedVector<CLngVector, LongElement>;
template class TypedVector<CStrVector, TextElement>;
template class TypedVector<CBoolVector, BooleanElement>;

}  // namespace qzbase
