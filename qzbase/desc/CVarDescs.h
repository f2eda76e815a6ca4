// A list of value descriptors, for instance those of a table's columns.
#pragma once

#include <string_view>

#include "qzbase/desc/DescList.h"
#include "qzbase/desc/TVarDesc.h"

namespace qzbase {

struct VarDescTraits {
  using Element = TVarDesc;
  static constexpr std::u16string_view kTag = u"VV#1";
};

class CVarDescs final : public DescList<CVarDescs, VarDescTraits> {};

extern template class DescList<CVarDescs, VarDescTraits>;

}  // namespace qzbase
