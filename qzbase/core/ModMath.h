// The greater and the lesser of two variants, by the automation comparison (runtime/Compare.h).
//
//   Max(3, 3.0)         the first, of its own type: ties go to the first
//   Max(null, 3)        3: a comparison with null is not true, so the second is taken, whichever side null is on
//   Max("a", 5)         "a": a text is greater than any number
//
// Objects and arrays raise error 13.
#pragma once

#include "qzbase/runtime/Variant.h"

namespace qzbase::ModMath {

const runtime::Variant& Max(const runtime::Variant& val1, const runtime::Variant& val2);
const runtime::Variant& Min(const runtime::Variant& val1, const runtime::Variant& val2);

}  // namespace qzbase::ModMath
