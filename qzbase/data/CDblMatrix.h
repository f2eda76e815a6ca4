// A matrix of doubles, whose rows are CDblVector objects (RowMatrix.h).
#pragma once

#include "qzbase/data/CDblVector.h"
#include "qzbase/data/RowMatrix.h"

namespace qzbase {

struct DoubleRow {
  using RowVector = CDblVector;
  using Argument = double;
  using Result = double;
};

class CDblMatrix final : public RowMatrix<CDblMatrix, DoubleRow> {};

extern template class RowMatrix<CDblMatrix, DoubleRow>;

}  // namespace qzbase
