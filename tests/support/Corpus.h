// The tables of tests/data: what a running automation runtime answered, row by row.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/os/LocaleRules.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::tests {

using os::FromUtf8;
using os::ToUtf8;

// The locales in which the tables were made.
inline constexpr std::string_view kLocaleNames[] = {"en-US", "de-DE", "fr-FR", "de-CH", "sv-SE"};

class CorpusRow {
 public:
  CorpusRow(const std::vector<std::string>& pHeader, std::vector<std::string> pFields, int pLine)
      : header_(&pHeader), fields_(std::move(pFields)), line_(pLine) {}

  // The field of a column, escapes resolved; empty when the row is short. A column that does not exist ends the test
  // run.
  const std::string& operator[](std::string_view pColumn) const;
  std::u16string Text(std::string_view pColumn) const { return FromUtf8((*this)[pColumn]); }
  double DoubleFromBits(std::string_view pColumn) const;  // 16 hexadecimal digits of an IEEE double
  std::string Shown() const;                              // as failures name it

  // A row with a doubt and nothing documented is unsettled.
  bool IsSettled() const;
  // What is documented, else the answer in the column, else the platform's failure: "error 13".
  std::string Expected(std::string_view pColumn) const;

 private:
  const std::vector<std::string>* header_;
  std::vector<std::string> fields_;
  int line_;
};

class Corpus {
 public:
  explicit Corpus(std::string_view pFileName);  // in tests/data
  auto begin() const { return rows_.begin(); }
  auto end() const { return rows_.end(); }

 private:
  std::vector<std::string> header_;
  std::vector<CorpusRow> rows_;
};

// The whole content of a file below tests/, and its path. A file that cannot be read ends the test run.
std::string ReadTestFile(std::string_view pRelativePath);
std::string TestFilePath(std::string_view pRelativePath);

// The rules of one of `kLocaleNames` as locale_data.tsv has them, the same on every system.
const os::LocaleRules& TestLocale(std::string_view pName);

// What a row expects and what the library answers.
struct Comparison {
  std::string expected;
  std::string actual;
};

// Compares all settled rows of a table and shows the first disagreements; nothing for rows that ask something else.
void CheckTable(std::string_view pFileName, const std::function<std::optional<Comparison>(const CorpusRow&)>& pCompare);

}  // namespace qzbase::tests
