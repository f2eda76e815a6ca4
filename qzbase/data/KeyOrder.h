// The order into which variants, the keys of rows, come when they sort.
//
//   KeyOrder({3, 1, 2}, true)    {1, 2, 0}: first the index of the least one
//
// It is the order of VectorSort.h, found faster where all keys are numbers (dates, booleans and empty ones included) or
// all are texts. Error 13 where one of several is an object or array.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "qzbase/runtime/Variant.h"

namespace qzbase {

std::vector<std::int32_t> KeyOrder(std::span<const runtime::Variant> pKeys, bool pAscending);

}  // namespace qzbase
