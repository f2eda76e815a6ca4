// A text that a function puts together for its own use: on the stack as long as it is short, as what users type is.
//
//   ShortText name;
//   name.Append(u"'").Append(pValue).Append(u"'");
//   runtime::FindText(pRange, name.Text());
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace qzbase {

class ShortText {
 public:
  ShortText() noexcept {}  // the room is not filled
  ShortText(const ShortText&) = delete;
  ShortText& operator=(const ShortText&) = delete;

  ShortText& Append(std::u16string_view pText) {
    if (long_.empty() && pText.size() <= room_.size() - size_) {
      std::copy(pText.begin(), pText.end(), room_.begin() + size_);
      size_ += pText.size();
    } else {
      if (long_.empty()) long_.assign(room_.data(), size_);
      long_ += pText;
    }
    return *this;
  }

  std::u16string_view Text() const noexcept {
    return long_.empty() ? std::u16string_view(room_.data(), size_) : std::u16string_view(long_);
  }

 private:
  std::array<char16_t, 128> room_;
  std::size_t size_ = 0;
  std::u16string long_;  // empty until the room does not do
};

}  // namespace qzbase
