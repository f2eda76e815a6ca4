// The tables of tests/data: what a running automation runtime answered, row by row.
#pragma once

#include <cstdint>
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
  std::uint64_t Hex(std::string_view pColumn) const;      // hexadecimal digits
  double DoubleFromBits(std::string_view pColumn) const;  // 16 hexadecimal digits of an IEEE double
  int Line() const { return line_; }

  // A row with a doubt and nothing documented is unsettled.
  bool IsSettled() const;

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

// Counts disagreements with a table and shows the first of them; reports at the end of its scope.
class Disagreements {
 public:
  explicit Disagreements(std::string pWhat) : what_(std::move(pWhat)) {}
  ~Disagreements();
  Disagreements(const Disagreements&) = delete;
  Disagreements& operator=(const Disagreements&) = delete;

  void Checked() { ++checked_; }
  void Add(const CorpusRow& pRow, std::string_view pInput, std::string_view pExpected, std::string_view pActual);

 private:
  std::string what_;
  std::string shown_;
  int checked_ = 0;
  int count_ = 0;
};

}  // namespace qzbase::tests
