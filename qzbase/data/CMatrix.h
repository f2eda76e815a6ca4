// A matrix of variants, whose rows are CVector objects (RowMatrix.h). It sorts texts by text comparison, ignoring case.
//
// New rows have no value type, so that each element is saved as what it is, with its marker. Such rows cannot be read
// back from the buffers written today (CVector.h): loading one raises InvVarType.
#pragma once

#include "qzbase/data/CVector.h"
#include "qzbase/data/RowMatrix.h"

namespace qzbase {

struct VariantRow {
  using RowVector = CVector;
  using Argument = runtime::Variant;
  using Result = const runtime::Variant&;  // good until the row changes
};

class CMatrix final : public RowMatrix<CMatrix, VariantRow> {};

extern template class RowMatrix<CMatrix, VariantRow>;

}  // namespace qzbase
