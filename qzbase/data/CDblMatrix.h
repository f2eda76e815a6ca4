// A matrix of doubles, whose rows are CDblVector objects (RowMatrix.h).
#pragma once

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/RowMatrix.h"
#include "qzbase/runtime/Compare.h"

namespace qzbase {

struct DoubleRow {
  using RowVector = CDblVector;
  using Key = double;

  static runtime::Order Compare(double pLeft, double pRight, const runtime::LocaleRules&) {
    return runtime::CompareNumbers(pLeft, pRight);
  }
};

class CDblMatrix final : public RowMatrix<CDblMatrix, DoubleRow> {};

extern template class RowMatrix<CDblMatrix, DoubleRow>;

}  // namespace qzbase
