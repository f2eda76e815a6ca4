// A list of entry descriptors, for instance those of a set of parameters.
#pragma once

#include <string_view>

#include "qzbase/desc/DescList.h"
#include "qzbase/desc/TEntryDesc.h"

namespace qzbase {

struct EntryDescTraits {
  using Element = TEntryDesc;
  static constexpr std::u16string_view kTag = u"DV#1";
};

class CEntryDescs final : public DescList<CEntryDescs, EntryDescTraits> {};

extern template class DescList<CEntryDescs, EntryDescTraits>;

}  // namespace qzbase
