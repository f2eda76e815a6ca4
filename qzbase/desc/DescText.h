// The text of a descriptor for people: "ID:x|Type:4|", each item with its label and a bar behind it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "qzbase/runtime/Convert.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase {

class DescText {
 public:
  DescText& Add(std::u16string_view pLabel, const std::u16string& pValue) {
    text_.append(pLabel).append(1, u':').append(pValue).append(1, u'|');
    return *this;
  }
  DescText& Add(std::u16string_view pLabel, std::int32_t pValue) { return Add(pLabel, runtime::NumberText(pValue)); }
  DescText& Add(std::u16string_view pLabel, bool pValue) {
    return Add(pLabel, std::u16string(runtime::BooleanText(pValue)));
  }

  std::u16string Text() { return std::move(text_); }

 private:
  std::u16string text_;
};

}  // namespace qzbase
