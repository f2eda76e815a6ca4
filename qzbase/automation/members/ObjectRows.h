// The rows that all object classes have in common, in the order of their interfaces.
#pragma once

#include "qzbase/automation/Members.h"

namespace qzbase::automation {

template <class C>
constexpr auto CopyRows(const char* pSource = "pSource") {
  return rows(method<&C::CopyFrom>("CopyFrom", {pSource}, "Takes over the contents of another object."),
              method<&C::GetCopy>("GetCopy", "A new object with the same contents."));
}

template <class C>
constexpr auto SaveRows() {
  return rows(method<&C::SaveToBuffer>("SaveToBuffer", {"pBuffer", opt("pAppend", false)},
                                       "Writes the object into a buffer, which is cleared first unless it appends."),
              method<&C::LoadFromBuffer>("LoadFromBuffer", {"pBuffer", opt("pAppend", false)},
                                         "Reads the object from a buffer, from its start unless it goes on."));
}

template <class C>
constexpr auto IsEqualRow(const char* pCompare = "pCompare") {
  return method<&C::IsEqual>("IsEqual", {pCompare}, "Whether two objects have equal contents.");
}

// What they all can do, but for their texts.
template <class C>
constexpr auto ObjectRows(const char* pSource = "pSource", const char* pCompare = "pCompare") {
  return rows(CopyRows<C>(pSource), IsEqualRow<C>(pCompare), SaveRows<C>());
}

}  // namespace qzbase::automation
