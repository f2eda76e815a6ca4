#include "qzbase/core/ErrorRegistry.h"

#include <limits>
#include <string>
#include <utility>

#include "qzbase/runtime/Positions.h"

namespace qzbase {

using runtime::Raise;
using runtime::RuntimeError;

template <class Predicate>
std::int32_t ErrorRegistry::FindIf(Predicate pMatches) const {
  for (const std::int32_t i : runtime::Positions(First(), Count()))
    if (pMatches(errors_[i])) return i;
  return 0;
}

std::int32_t ErrorRegistry::Find(std::u16string_view pModule, std::u16string_view pID) const {
  return FindIf(
      [&](const TErrDesc& pEntry) { return pEntry.ID == pID && (pModule.empty() || pEntry.Module == pModule); });
}

const TErrDesc* ErrorRegistry::FindCode(std::int32_t pCode) const {
  const std::int32_t position = FindIf([&](const TErrDesc& pEntry) { return pEntry.Code == pCode; });
  return position > 0 ? &errors_[position] : nullptr;
}

std::int32_t ErrorRegistry::Register(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg,
                                     bool pAddInfo) {
  if (const std::int32_t registered = Find(pID, pModule); registered > 0) return registered;

  if (Count() > std::numeric_limits<std::int32_t>::max() - kCodeBase - 1) Raise(RuntimeError::Overflow);
  const std::int32_t position = Count() + 1;
  if (position < 1) Raise(RuntimeError::SubscriptOutOfRange);
  errors_.Elements().push_back(
      {position + kCodeBase, std::u16string(pID), std::u16string(pModule), std::u16string(pMsg), pAddInfo});
  return position;
}

void ErrorRegistry::SetEntries(runtime::Array<TErrDesc> pErrors) {
  if (!pErrors.IsAllocated()) Raise(RuntimeError::SubscriptOutOfRange);
  errors_ = std::move(pErrors);
}

}  // namespace qzbase
