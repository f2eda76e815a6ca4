#include "tests/support/Corpus.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
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
  os::LocaleRules rules;
  rules.name = FromUtf8(pName);
  rules.leadingZero = item["ilzero"] != u"0";
  // The names of the items, and what takes each of them.
  std::istringstream names(
      "decimal thousand poss negsign list currency mondec monthou date time shortdate longdate timefmt shorttime am pm "
      "idigits inegnumber icurrdigits icurrency inegcurr firstday firstweek");
  const auto next = [&] { return item[*std::istream_iterator<std::string>(names)]; };
  for (std::u16string* each :
       {&rules.decimal, &rules.thousands, &rules.positiveSign, &rules.negativeSign, &rules.listSeparator,
        &rules.currency, &rules.monetaryDecimal, &rules.monetaryThousands, &rules.dateSeparator, &rules.timeSeparator,
        &rules.shortDate, &rules.longDate, &rules.longTime, &rules.shortTime, &rules.am, &rules.pm})
    *each = next();
  for (std::int32_t* each : {&rules.decimals, &rules.negativeNumber, &rules.monetaryDecimals, &rules.positiveCurrency,
                             &rules.negativeCurrency, &rules.firstDayOfWeek, &rules.firstWeekOfYear})
    *each = std::stoi(ToUtf8(next()));
  const auto numbered = [&](const char* pPrefix, auto& pNames) {
    for (std::size_t i = 0; i < pNames.size(); ++i) pNames[i] = item[pPrefix + std::to_string(i + 1)];
  };
  numbered("day", rules.days);
  numbered("aday", rules.shortDays);
  numbered("month", rules.months);
  numbered("amonth", rules.shortMonths);
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

double CorpusRow::DoubleFromBits(std::string_view pColumn) const {
  return std::bit_cast<double>(std::uint64_t{std::stoull((*this)[pColumn], nullptr, 16)});
}

bool CorpusRow::IsSettled() const {
  const auto isFilled = [&](const char* pColumn) {
    return std::find(header_->begin(), header_->end(), pColumn) != header_->end() && !(*this)[pColumn].empty();
  };
  return (*this)["doubt"].empty() || isFilled("documented") || isFilled("documented_iso");
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
