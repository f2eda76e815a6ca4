// The value types: what a descriptor declares, a dialog edits and a buffer saves.
//
//   type        English name  invalid value            as a variant
//   EVTInvalid                0                        16-bit integer
//   EVTBoolean  Boolean       false                    boolean
//   EVTDouble   Number        -9.9999999999E+300       double
//   EVTLong     Integer       -2147483636              32-bit integer
//   EVTString   Text          "~"                      text
//   EVTDate     Date          day 0                    date
//   EVTColor    Color         -1                       32-bit integer
//   EVTObject                 0                        16-bit integer
//   EVTEnum     Enum          -1                       16-bit integer
//
// The invalid value of a type marks a missing element or entry.
#pragma once

#include <cstdint>
#include <string_view>

#include "qzbase/runtime/Variant.h"

namespace qzbase {

// Do not change the numbers: they are in people's files.
enum QZVarType : std::int32_t {
  EVTInvalid = 0,
  EVTBoolean = 1,
  EVTDouble = 2,
  EVTLong = 3,
  EVTString = 4,
  EVTDate = 5,
  EVTColor = 6,
  EVTObject = 7,
  EVTEnum = 8,
};

inline constexpr double kInvalidDouble = -9.9999999999e+300;
inline constexpr std::int32_t kInvalidLong = -2147483636;
inline constexpr std::u16string_view kInvalidString = u"~";
inline constexpr runtime::Date kInvalidDate{0};
inline constexpr std::int32_t kInvalidColor = -1;
inline constexpr std::int16_t kInvalidEnum = -1;

// The invalid value of a type; 0 for a number that is no type.
runtime::Variant InvalidValueOf(QZVarType pVarType);

// The English name of a type, empty where it has none.
std::u16string_view NameOf(QZVarType pVarType) noexcept;

// The type under which a value is saved or shown when none is stated: integers are EVTLong, single and double
// EVTDouble; objects, arrays, null and empty are EVTInvalid.
QZVarType VarTypeOf(const runtime::Variant& pValue) noexcept;

}  // namespace qzbase
