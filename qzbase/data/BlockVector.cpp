#include "qzbase/data/BlockVector.h"

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"

namespace qzbase {

template <class Self, class Element>
std::int32_t BlockVector<Self, Element>::NrValid() const {
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  std::int32_t count = 0;
  for (std::int32_t i = 0; i < Size(); ++i)
    if (!Element::Equal(Value(i + 1), Element::kDefault, rules)) ++count;
  return count;
}

template class BlockVector<CDblVector, DoubleElement>;
template class BlockVector<CLngVector, LongElement>;
template class BlockVector<CStrVector, TextElement>;

}  // namespace qzbase
