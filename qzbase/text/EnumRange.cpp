#include "qzbase/text/EnumRange.h"

#include "qzbase/text/ModString.h"

namespace qzbase::ModString {
namespace {

constexpr char16_t kDelimiter = u';';

std::u16string_view WithoutBraces(std::u16string_view pRange) {
  if (pRange.starts_with(u'{')) pRange.remove_prefix(1);
  if (pRange.ends_with(u'}')) pRange.remove_suffix(1);
  return pRange;
}

// Walks through the items that `SplitList` would give, without copying them.
class EnumItems {
 public:
  explicit EnumItems(std::u16string_view pRange) : rest_(WithoutBraces(pRange)), more_(!rest_.empty()) {}

  // False behind the last item; `pItem` is left as it was then.
  bool Next(std::u16string_view& pItem) {
    if (!more_) return false;
    const std::size_t end = rest_.find(kDelimiter);
    pItem = rest_.substr(0, end);
    more_ = end != std::u16string_view::npos;
    if (more_) rest_.remove_prefix(end + 1);
    return true;
  }

 private:
  std::u16string_view rest_;
  bool more_;
};

}  // namespace

std::int32_t ParseEnumRange(std::u16string_view Range, runtime::Array<std::u16string>& Item) {
  return SplitList(WithoutBraces(Range), {&kDelimiter, 1}, Item);
}

std::int32_t EnumOrd(std::u16string_view Item, std::u16string_view Range) {
  EnumItems items(Range);
  std::int32_t position = 0;
  for (std::u16string_view item; items.Next(item);) {
    ++position;
    if (item == Item) return position;
  }
  return -1;
}

std::u16string EnumVal(std::int32_t ItemNr, std::u16string_view Range) {
  EnumItems items(Range);
  std::int32_t position = 0;
  for (std::u16string_view item; items.Next(item);)
    if (++position == ItemNr) return std::u16string(item);
  return {};
}

}  // namespace qzbase::ModString
