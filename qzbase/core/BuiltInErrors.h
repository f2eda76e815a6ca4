// The errors that the library itself raises, one row each. A new one is one row here, and its place where it is raised.
//
// They are registered in this order at a thread's first use, so that they bear the numbers 1001 and up until a host
// aligns the numbers of two registries. Code raises them by name: ModError::RaiseBuiltIn(BuiltInError::InvRange, text).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qzbase {

// The position in the table, from 0.
enum class BuiltInError : std::uint8_t {
  InValue,
  InvFormat,
  InvRange,
  EmptyText,
  InvOutFormat,
  InvRangeString,
  Stop,
  InvWinPasswd,
  LocKeyExists,
  InvVarType,
};

struct BuiltInErrorRow {
  BuiltInError which;
  std::u16string_view module;
  std::u16string_view id;
  std::u16string_view message;
  bool addInfo;
};

// Hosts translate by module and identifier and know the order by the numbers: do not change either, add at the end.
inline constexpr std::array kBuiltInErrors = {
    BuiltInErrorRow{BuiltInError::InValue, u"Format", u"InValue", u"No valid entry entered, please enter valid entry",
                    false},
    BuiltInErrorRow{BuiltInError::InvFormat, u"Format", u"InvFormat", u"Invalid number format", false},
    BuiltInErrorRow{BuiltInError::InvRange, u"Format", u"InvRange", u"Number out of range", true},
    BuiltInErrorRow{BuiltInError::EmptyText, u"Format", u"EmptyText", u"Text must contain at least one character",
                    false},
    BuiltInErrorRow{BuiltInError::InvOutFormat, u"Format", u"InvOutFormat",
                    u"Detected \",\" in number out-format! Please use \".\" as decimal delimiter.", false},
    BuiltInErrorRow{BuiltInError::InvRangeString, u"Format", u"InvRangeString", u"Invalid range string", false},
    BuiltInErrorRow{BuiltInError::Stop, u"System", u"Stop", u"User interrupt", false},
    BuiltInErrorRow{BuiltInError::InvWinPasswd, u"System", u"InvWinPasswd", u"Invalid password", false},
    BuiltInErrorRow{BuiltInError::LocKeyExists, u"Resource", u"LocKeyExists",
                    u"Localization key of string does already exist", true},
    BuiltInErrorRow{BuiltInError::InvVarType, u"Buffer", u"InvVarType",
                    u"Buffer inconsistent: Invalid var type detected", false},
};

namespace detail {
constexpr bool RowsStandInOrder() {
  for (std::size_t i = 0; i < kBuiltInErrors.size(); ++i)
    if (static_cast<std::size_t>(kBuiltInErrors[i].which) != i) return false;
  return true;
}
}  // namespace detail
static_assert(detail::RowsStandInOrder());

}  // namespace qzbase
