#include "tests/support/Corpus.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace qzbase::tests {
namespace {

[[noreturn]] void Fail(std::string_view pWhat, std::string_view pName) {
  std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(pWhat.size()), pWhat.data(), static_cast<int>(pName.size()),
               pName.data());
  std::abort();
}

std::string Unescape(std::string_view pField) {
  std::string result;
  for (std::size_t i = 0; i < pField.size(); ++i) {
    if (pField[i] != '\\' || i + 1 == pField.size()) {
      result += pField[i];
      continue;
    }
    const char c = pField[++i];
    result += c == 't' ? '\t' : c == 'n' ? '\n' : c == 'r' ? '\r' : c;
  }
  return result;
}

std::vector<std::string> SplitFields(const std::string& pLine) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  for (std::size_t tab; (tab = pLine.find('\t', start)) != std::string::npos; start = tab + 1)
    fields.push_back(Unescape(std::string_view(pLine).substr(start, tab - start)));
  fields.push_back(Unescape(std::string_view(pLine).substr(start)));
  return fields;
}

os::LocaleRules ReadLocale(std::string_view pName) {
  std::map<std::string, std::u16string> item;
  for (const CorpusRow& row : Corpus("locale_data.tsv")) item[row["item"]] = row.Text(pName);
  const auto number = [&](const char* pItem) { return std::atoi(ToUtf8(item[pItem]).c_str()); };

  os::LocaleRules rules;
  rules.name = FromUtf8(pName);
  rules.decimal = item["decimal"];
  rules.thousands = item["thousand"];
  rules.decimals = number("idigits");
  rules.leadingZero = number("ilzero") != 0;
  rules.negativeNumber = number("inegnumber");
  rules.positiveSign = item["poss"];
  rules.negativeSign = item["negsign"];
  rules.listSeparator = item["list"];
  rules.currency = item["currency"];
  rules.monetaryDecimal = item["mondec"];
  rules.monetaryThousands = item["monthou"];
  rules.monetaryDecimals = number("icurrdigits");
  rules.positiveCurrency = number("icurrency");
  rules.negativeCurrency = number("inegcurr");
  rules.dateSeparator = item["date"];
  rules.timeSeparator = item["time"];
  rules.shortDate = item["shortdate"];
  rules.longDate = item["longdate"];
  rules.longTime = item["timefmt"];
  rules.shortTime = item["shorttime"];
  rules.am = item["am"];
  rules.pm = item["pm"];
  rules.firstDayOfWeek = number("firstday");
  rules.firstWeekOfYear = number("firstweek");
  const auto names = [&](const char* pPrefix, auto& pNames) {
    for (std::size_t i = 0; i < pNames.size(); ++i) pNames[i] = item[pPrefix + std::to_string(i + 1)];
  };
  names("day", rules.days);
  names("aday", rules.shortDays);
  names("month", rules.months);
  names("amonth", rules.shortMonths);
  return rules;
}

}  // namespace

const std::string& CorpusRow::operator[](std::string_view pColumn) const {
  static const std::string empty;
  const auto column = std::find(header_->begin(), header_->end(), pColumn);
  if (column == header_->end()) Fail("no such column", pColumn);
  const auto index = static_cast<std::size_t>(column - header_->begin());
  return index < fields_.size() ? fields_[index] : empty;
}

std::uint64_t CorpusRow::Hex(std::string_view pColumn) const {
  const std::string& digits = (*this)[pColumn];
  std::uint64_t value = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), value, 16).ec != std::errc())
    Fail("no hexadecimal number", digits);
  return value;
}

double CorpusRow::DoubleFromBits(std::string_view pColumn) const {
  return std::bit_cast<double>(Hex(pColumn));
}

bool CorpusRow::IsSettled() const {
  if ((*this)["doubt"].empty()) return true;
  for (const char* column : {"documented", "documented_iso"})
    if (std::find(header_->begin(), header_->end(), column) != header_->end() && !(*this)[column].empty()) return true;
  return false;
}

std::string CorpusRow::Expected(std::string_view pColumn) const {
  if (!(*this)["documented"].empty()) return (*this)["documented"];
  const std::string& result = (*this)["hr"];
  if (result == "00000000") return (*this)[pColumn];
  return result == "80020005" ? "error 13" : result == "8002000a" ? "error 6" : "error 5";
}

std::string CorpusRow::Shown() const {
  std::string text = "line " + std::to_string(line_) + " ";
  for (const std::string& field : fields_) text += "[" + field + "] ";
  return text;
}

Corpus::Corpus(std::string_view pFileName) {
  std::istringstream stream(ReadTestFile("data/" + std::string(pFileName)));
  std::string line;
  std::getline(stream, line);
  header_ = SplitFields(line);
  for (int number = 2; std::getline(stream, line); ++number) rows_.emplace_back(header_, SplitFields(line), number);
}

std::string TestFilePath(std::string_view pRelativePath) {
  return std::string(QZBASE_TEST_FOLDER "/") + std::string(pRelativePath);
}

std::string ReadTestFile(std::string_view pRelativePath) {
  std::ifstream stream(TestFilePath(pRelativePath), std::ios::binary);
  if (!stream) Fail("cannot read the test file", pRelativePath);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

const os::LocaleRules& TestLocale(std::string_view pName) {
  static std::map<std::string, os::LocaleRules, std::less<>> locales;
  auto found = locales.find(pName);
  if (found == locales.end()) found = locales.emplace(std::string(pName), ReadLocale(pName)).first;
  return found->second;
}

void CheckTable(std::string_view pFileName,
                const std::function<std::optional<Comparison>(const CorpusRow&)>& pCompare) {
  int checked = 0;
  int wrong = 0;
  for (const CorpusRow& row : Corpus(pFileName)) {
    const std::optional<Comparison> answer = row.IsSettled() ? pCompare(row) : std::nullopt;
    if (!answer) continue;
    ++checked;
    if (answer->actual != answer->expected && ++wrong <= 20)
      ADD_FAILURE() << row.Shown() << "expected [" << answer->expected << "] got [" << answer->actual << "]";
  }
  EXPECT_GT(checked, 0) << pFileName;
  EXPECT_EQ(wrong, 0) << pFileName << ", of " << checked << " rows";
}

}  // namespace qzbase::tests
