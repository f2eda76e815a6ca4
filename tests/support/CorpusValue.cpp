#include "tests/support/CorpusValue.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <cstdio>

#include "qzbase/os/Utf8.h"

namespace qzbase::tests {
namespace {

using runtime::Date;
using runtime::Variant;

template <class T>
T Digits(std::string_view pText, int pBase) {
  T value{};
  std::from_chars(pText.data(), pText.data() + pText.size(), value, pBase);
  return value;
}

template <class Bits>
std::string HexText(const char* pKind, Bits pBits) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%s:%0*llx", pKind, static_cast<int>(2 * sizeof(Bits)),
                static_cast<unsigned long long>(pBits));
  return buffer;
}

}  // namespace

std::optional<Variant> ParseCorpusValue(std::string_view pText) {
  if (pText == "EMPTY") return Variant();
  if (pText == "NULL") return Variant(runtime::Null{});
  const std::size_t colon = pText.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view kind = pText.substr(0, colon);
  const std::string_view content = pText.substr(colon + 1);
  if (kind == "R8") return Variant(std::bit_cast<double>(Digits<std::uint64_t>(content, 16)));
  if (kind == "R4") return Variant(std::bit_cast<float>(Digits<std::uint32_t>(content, 16)));
  if (kind == "DATE") return Variant(Date{std::bit_cast<double>(Digits<std::uint64_t>(content, 16))});
  if (kind == "I2" || kind == "UI1") return Variant(Digits<std::int16_t>(content, 10));
  if (kind == "I4") return Variant(Digits<std::int32_t>(content, 10));
  if (kind == "BSTR") return Variant(os::FromUtf8(content));
  if (kind == "BOOL" && (content == "-1" || content == "0")) return Variant(content == "-1");
  return std::nullopt;
}

std::string CorpusValueText(const Variant& pValue) {
  if (const auto* integer = pValue.If<std::int16_t>()) return "I2:" + std::to_string(*integer);
  if (const auto* number = pValue.If<std::int32_t>()) return "I4:" + std::to_string(*number);
  if (const auto* single = pValue.If<float>()) return HexText("R4", std::bit_cast<std::uint32_t>(*single));
  if (const auto* number = pValue.If<double>()) return HexText("R8", std::bit_cast<std::uint64_t>(*number));
  if (const auto* date = pValue.If<Date>()) return HexText("DATE", std::bit_cast<std::uint64_t>(date->days));
  if (const auto* text = pValue.If<std::u16string>()) return "BSTR:" + os::ToUtf8(*text);
  if (const auto* flag = pValue.If<bool>()) return *flag ? "BOOL:-1" : "BOOL:0";
  return pValue.IsEmpty() ? "EMPTY" : pValue.IsNull() ? "NULL" : pValue.IfArray() ? "ARRAY" : "OBJECT";
}

}  // namespace qzbase::tests
