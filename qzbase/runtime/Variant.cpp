#include "qzbase/runtime/Variant.h"

namespace qzbase::runtime {

ArrayBox::ArrayBox(AnyArray pArray) : array_(std::make_unique<AnyArray>(std::move(pArray))) {}
ArrayBox::ArrayBox(const ArrayBox& pOther) : array_(std::make_unique<AnyArray>(*pOther)) {}
ArrayBox::ArrayBox(ArrayBox&&) noexcept = default;
ArrayBox& ArrayBox::operator=(const ArrayBox& pOther) {
  return *this = ArrayBox(pOther);
}
ArrayBox& ArrayBox::operator=(ArrayBox&&) noexcept = default;
ArrayBox::~ArrayBox() = default;

const AnyArray* Variant::IfArray() const noexcept {
  const auto* box = std::get_if<ArrayBox>(&value_);
  return box ? &**box : nullptr;
}

AnyArray* Variant::IfArray() noexcept {
  auto* box = std::get_if<ArrayBox>(&value_);
  return box ? &**box : nullptr;
}

}  // namespace qzbase::runtime
