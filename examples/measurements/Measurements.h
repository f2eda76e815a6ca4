// Columns of measurements: a vector of doubles for each column of numbers, a vector of texts for each of the rest.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "examples/support/Csv.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/persist/CBuffer.h"

struct Column {
  std::u16string name;
  std::variant<qzbase::Ref<qzbase::CDblVector>, qzbase::Ref<qzbase::CStrVector>> values;
};

class Measurements {
 public:
  // A column is one of numbers when its first cell that is not empty is a number ("." as decimal point). An empty cell
  // in it becomes the invalid value; anything else that is no number is refused with std::runtime_error.
  static Measurements FromCsv(const CsvTable& pTable);

  // The record: tag "MS#1", number of columns, for each its name, whether it holds numbers, and its vector; tag "\MS".
  void SaveToBuffer(qzbase::CBuffer& pBuffer) const;

  // std::runtime_error when the buffer holds another record, is damaged or was cut short; AutomationError where a value
  // is of another type than expected.
  static Measurements LoadFromBuffer(qzbase::CBuffer& pBuffer);

  bool IsEqual(const Measurements& pCompare) const;

  const std::vector<Column>& Columns() const { return columns_; }

 private:
  std::vector<Column> columns_;
};
