// Handles of the locale library that close themselves: one alias line for each kind.
#pragma once

#include <memory>
#include <type_traits>

#include <unicode/ucal.h>
#include <unicode/ucol.h>
#include <unicode/udat.h>
#include <unicode/udatpg.h>
#include <unicode/unum.h>
#include <unicode/ures.h>
#include <unicode/uset.h>

namespace qzbase::os {

template <auto pClose>
struct IcuClose {
  template <class T>
  void operator()(T* pHandle) const noexcept {
    pClose(pHandle);
  }
};

// The library's handle types are aliases of `void*` or of pointers to incomplete types.
template <class Handle, auto pClose>
using IcuHandle = std::unique_ptr<std::remove_pointer_t<Handle>, IcuClose<pClose>>;

using CollatorHandle = IcuHandle<UCollator*, &ucol_close>;
using CharacterSetHandle = IcuHandle<USet*, &uset_close>;
using NumberFormatHandle = IcuHandle<UNumberFormat*, &unum_close>;
using DateFormatHandle = IcuHandle<UDateFormat*, &udat_close>;
using DatePatternsHandle = IcuHandle<UDateTimePatternGenerator*, &udatpg_close>;
using CalendarHandle = IcuHandle<UCalendar*, &ucal_close>;
using ResourceHandle = IcuHandle<UResourceBundle*, &ures_close>;

}  // namespace qzbase::os
