// Takes values off the front of a fuzzer's bytes; an input that ran out gives zeros.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "qzbase/os/LocaleRules.h"

namespace qzbase::fuzz {

class Input {
 public:
  Input(const std::uint8_t* pData, std::size_t pSize) : data_(pData), left_(pSize) {}

  template <class T>
  T Take() {
    T value{};
    const std::size_t count = std::min(left_, sizeof value);
    std::memcpy(&value, data_, count);
    Skip(count);
    return value;
  }

  std::vector<std::uint8_t> TakeBytes(std::size_t pCount) {
    const std::size_t count = std::min(left_, pCount);
    std::vector<std::uint8_t> bytes(data_, data_ + count);
    Skip(count);
    return bytes;
  }

  std::vector<std::uint8_t> TakeRest() { return TakeBytes(left_); }

  // One 16-bit character for each byte: plain characters as they are, the upper half spread over what locales use.
  std::u16string TakeText(std::size_t pCount) {
    static constexpr char16_t kOthers[] = {0xA0, 0x202F, 0x2019, 0x20AC, 0xA3,   0xE4,
                                           0xFB, 0x130,  0x131,  0xFF11, 0xD800, 0};
    std::u16string text;
    for (const std::uint8_t byte : TakeBytes(pCount))
      text += byte < 0x80 ? static_cast<char16_t>(byte) : kOthers[byte % std::size(kOthers)];
    return text;
  }

  // The characters up to the next line feed, which goes with them.
  std::u16string TakeLine() {
    const std::uint8_t* end = std::find(data_, data_ + left_, std::uint8_t{'\n'});
    const std::u16string text = TakeText(static_cast<std::size_t>(end - data_));
    Skip(std::min<std::size_t>(left_, 1));
    return text;
  }

  bool IsEmpty() const { return left_ == 0; }

 private:
  void Skip(std::size_t pCount) {
    data_ += pCount;
    left_ -= pCount;
  }

  const std::uint8_t* data_;
  std::size_t left_;
};

// Two sets of rules that differ in everything a recogniser looks at; and the second with "." between thousands and in
// times, so that each of the two delimiters of numbers is the other one of the first, and a "." may belong to a date or
// a time.
inline const os::LocaleRules& ChooseLocale(std::uint8_t pChoice) {
  static const os::LocaleRules invariant;
  static const os::LocaleRules comma = [] {
    os::LocaleRules rules;
    rules.decimal = rules.monetaryDecimal = u",";
    rules.thousands = rules.monetaryThousands = u"\u202F";
    rules.currency = u"\u20AC";
    rules.negativeCurrency = 8;
    rules.positiveCurrency = 3;
    rules.dateSeparator = u".";
    rules.shortDate = u"d.M.yyyy";
    rules.months[11] = u"d\u00E9cembre";
    rules.shortMonths[11] = u"d\u00E9c.";
    return rules;
  }();
  static const os::LocaleRules crossed = [] {
    os::LocaleRules rules = comma;
    rules.thousands = rules.monetaryThousands = rules.timeSeparator = u".";
    rules.longTime = u"H.mm.ss";
    return rules;
  }();
  return pChoice % 2 == 0 ? invariant : pChoice % 4 == 3 ? crossed : comma;
}

}  // namespace qzbase::fuzz
