// A one-based list of texts (TypedVector.h, BlockVector.h). The invalid value is "~". Texts compare by the locale's
// order, ignoring case, but sort as the whole numbers that they say (VectorSort.h).
#pragma once

#include "qzbase/data/BlockVector.h"

namespace qzbase {

class CStrVector final : public BlockVector<TypedVector<CStrVector, TextElement>> {};

extern template class ElementVector<CStrVector, TextElement>;
extern template class TypedVector<CStrVector, TextElement>;

}  // namespace qzbase
