// The platform's automation interfaces. Include it behind the member tables: its macros rename members.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <string>
#include <string_view>

#include <ocidl.h>
#include <oleauto.h>
#include <windows.h>

// The platform's interfaces have no destructors: their objects delete themselves.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace qzbase::automation::com {

// Both are 16-bit text; the platform calls its characters wchar_t.
inline const wchar_t* AsWide(const char16_t* pText) noexcept {
  return reinterpret_cast<const wchar_t*>(pText);
}
inline std::u16string_view AsText(std::wstring_view pText) noexcept {
  return {reinterpret_cast<const char16_t*>(pText.data()), pText.size()};
}

// Names of the tables are plain ASCII.
inline std::u16string Widen(std::string_view pName) {
  return {pName.begin(), pName.end()};
}

}  // namespace qzbase::automation::com
