#include "qzbase/core/ModMath.h"

#include "qzbase/runtime/Compare.h"

namespace qzbase::ModMath {
namespace {

using runtime::Order;
using runtime::Variant;

const Variant& FirstIf(Order pWanted, const Variant& pFirst, const Variant& pSecond) {
  const Order order = runtime::Compare(pFirst, pSecond);
  return order == pWanted || order == Order::Equal ? pFirst : pSecond;
}

}  // namespace

const Variant& Max(const Variant& val1, const Variant& val2) {
  return FirstIf(Order::Greater, val1, val2);
}

const Variant& Min(const Variant& val1, const Variant& val2) {
  return FirstIf(Order::Less, val1, val2);
}

}  // namespace qzbase::ModMath
