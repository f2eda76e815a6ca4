#include "qzbase/core/QZVarType.h"

#include <array>
#include <cstddef>
#include <variant>

namespace qzbase {
namespace {

using runtime::Date;
using runtime::Variant;

struct ValueTypeRow {
  QZVarType type;
  std::u16string_view name;
  std::variant<std::int16_t, bool, double, std::int32_t, std::u16string_view, Date> invalid;
};

constexpr ValueTypeRow kValueTypes[] = {
    {EVTInvalid, u"", std::int16_t{0}},  {EVTBoolean, u"Boolean", false},      {EVTDouble, u"Number", kInvalidDouble},
    {EVTLong, u"Integer", kInvalidLong}, {EVTString, u"Text", kInvalidString}, {EVTDate, u"Date", kInvalidDate},
    {EVTColor, u"Color", kInvalidColor}, {EVTObject, u"", std::int16_t{0}},    {EVTEnum, u"Enum", kInvalidEnum},
};

const ValueTypeRow& RowOf(QZVarType pVarType) noexcept {
  for (const ValueTypeRow& row : kValueTypes)
    if (row.type == pVarType) return row;
  return kValueTypes[0];
}

// In the order of VariantKind.
constexpr QZVarType kTypeOfKind[] = {
    EVTInvalid,  // Empty
    EVTInvalid,  // Null
    EVTLong,     // Integer
    EVTLong,     // Long
    EVTDouble,   // Single
    EVTDouble,   // Double
    EVTDate,     // Date
    EVTString,   // String
    EVTBoolean,  // Boolean
    EVTInvalid,  // Object
    EVTInvalid,  // Array
};
static_assert(std::size(kTypeOfKind) == static_cast<std::size_t>(runtime::VariantKind::Array) + 1);

}  // namespace

Variant InvalidValueOf(QZVarType pVarType) {
  return std::visit([](const auto& value) { return Variant(value); }, RowOf(pVarType).invalid);
}

std::u16string_view NameOf(QZVarType pVarType) noexcept {
  return RowOf(pVarType).name;
}

QZVarType VarTypeOf(const Variant& pValue) noexcept {
  return kTypeOfKind[static_cast<std::size_t>(pValue.Kind())];
}

}  // namespace qzbase
