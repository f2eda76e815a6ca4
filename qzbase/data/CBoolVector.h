// A one-based list of booleans (TypedVector.h). There is no invalid value, and storage has as many slots as elements,
// at least one.
#pragma once

#include "qzbase/data/TypedVector.h"

namespace qzbase {

class CBoolVector final : public TypedVector<CBoolVector, BooleanElement> {};

extern template class ElementVector<CBoolVector, BooleanElement>;
extern template class TypedVector<CBoolVector, BooleanElement>;

}  // namespace qzbase
