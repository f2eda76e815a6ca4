// The arguments of one call by name, put into the order of the parameters. `Value` is the caller's kind of variable.
//
// Faults raise 450 (too many, or one given twice), 448 (no such parameter) and 449 (a parameter without an argument or
// a default).
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "qzbase/automation/Members.h"
#include "qzbase/runtime/AutomationError.h"

namespace qzbase::automation {

template <class Value>
class ArgumentList {
 public:
  ArgumentList(const MemberTable& pTable, const MemberDesc& pRow) : parameters_(pTable.Parameters(pRow)) {
    std::fill_n(list_.begin(), parameters_.size(), nullptr);
  }

  // By position; null for one that is left out.
  void Place(std::size_t pAt, Value* pValue) {
    if (pAt >= parameters_.size() || (placed_ >> pAt & 1U) != 0)
      runtime::Raise(runtime::RuntimeError::WrongNumberOfArguments);
    list_[pAt] = pValue;
    placed_ |= 1U << pAt;
  }
  void PlaceLast(Value* pValue) { Place(parameters_.size() - 1, pValue); }
  // By the position that a name stands for.
  void PlaceNamed(std::int32_t pAt, Value* pValue) {
    if (pAt < 0) runtime::Raise(runtime::RuntimeError::NamedArgumentNotFound);
    Place(static_cast<std::size_t>(pAt), pValue);
  }

  // One a parameter, null where the default is meant.
  Value* const* Complete() const {
    for (std::size_t i = 0; i < parameters_.size(); ++i)
      if (!list_[i] && !parameters_[i].IsOptional()) runtime::Raise(runtime::RuntimeError::ArgumentNotOptional);
    return list_.data();
  }

 private:
  std::span<const ParameterDesc> parameters_;
  std::array<Value*, kMaxParameters> list_;
  std::uint32_t placed_ = 0;  // a bit each
  static_assert(kMaxParameters <= 32);
};

}  // namespace qzbase::automation
