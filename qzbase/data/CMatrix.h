// A matrix of variants, whose rows are CVector objects (RowMatrix.h). It sorts texts by text comparison, ignoring case.
//
// New rows have no value type, so that each element is saved as what it is, with its marker. Such rows cannot be read
// back from the buffers written today (CVector.h): loading one raises InvVarType.
#pragma once

#include <functional>

#include "qzbase/data/CVector.h"
#include "qzbase/data/RowMatrix.h"
#include "qzbase/data/VectorSort.h"

namespace qzbase {

struct VariantRow {
  using RowVector = CVector;
  using Key = std::reference_wrapper<const runtime::Variant>;  // into the row

  static runtime::Order Compare(const runtime::Variant& pLeft, const runtime::Variant& pRight,
                                const runtime::LocaleRules& pRules) {
    return CompareInSort(pLeft, pRight, runtime::CaseRule::IgnoreCase, pRules);
  }
};

class CMatrix final : public RowMatrix<CMatrix, VariantRow> {};

extern template class RowMatrix<CMatrix, VariantRow>;

}  // namespace qzbase
