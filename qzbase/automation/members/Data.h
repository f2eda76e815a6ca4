// The members of the data containers.
#pragma once

#include <type_traits>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/automation/members/Tables.h"
#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/data/TPoint.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TPoint> = record(field<&TPoint::X>("X", "The abscissa."),
                                              field<&TPoint::Y>("Y", "The ordinate."));

// ---- The vectors: the rows that they share, in the order in which they stand.

template <class V>
inline constexpr auto kVectorType = method<&V::VarType>("VarType", "The value type of the elements.");
template <class V>
inline constexpr auto kVectorSize = get<&V::Size>("Size", "The number of elements.");
template <class V>
inline constexpr auto kLetVectorSize = let<&V::LetSize>("Size");

template <class V>
inline constexpr auto kVectorText = method<&V::GetString>("GetString", "The elements as a text like (1;2;3).");
template <class V>
inline constexpr auto kValue = get<&V::Value>("Value", {"pIndex"}, "The element at an index from 1.");
template <class V>
inline constexpr auto kLetValue = let<&V::LetValue>("Value", {"pIndex"});

// `pDefault` is the value that InsertValue takes when none is given.
template <class V>
constexpr auto InsertRows(auto pDefault) {
  return rows(method<&V::InsertValue>("InsertValue", {"pAtPos", opt("pValue", pDefault)},
                                      "Inserts an element; a position outside appends it."),
              method<&V::AddValue>("AddValue", {"pValue"}, "Appends an element."));
}

template <class V>
constexpr auto ElementRows(auto pDefault) {
  return rows(method<&V::SetFromArray>("SetFromArray", {byRef("InArray")}, "Takes the elements of an array."),
              method<&V::GetArray>("GetArray", "All slots of the storage, which are at least as many as elements."),
              method<&V::SetFromString>("SetFromString", {"pString"}, "Takes the elements from a text like (1;2;3)."),
              kVectorText<V>, kLetValue<V>, kValue<V>, InsertRows<V>(pDefault));
}

template <class V>
inline constexpr auto kAddUniqueValue = method<&V::AddUniqueValue>("AddUniqueValue", {"pValue"},
                                                                   "Appends an element unless an equal one is there.");

template <class V>
constexpr auto LookUpRows() {
  return rows(method<&V::DeleteValue>("DeleteValue", {"pIndex"}, "Removes an element."),
              method<&V::Index>("Index", {"pValue", opt("pStartIndex", 1)},
                                "The first index from a start on with an equal element, -1 if there is none."));
}

template <class V>
constexpr auto ClosestRows() {
  return rows(method<&V::ClosestIndex>("ClosestIndex", {"pValue", opt("pStartIndex", 1), opt("pEndIndex", 0)},
                                       "The index of the element nearest to a value."),
              method<&V::ClosestLeftIndex>("ClosestLeftIndex", {"pValue"},
                                           "The last index whose element is not above a value."),
              method<&V::ClosestRightIndex>("ClosestRightIndex", {"pValue"},
                                            "The first index whose element is not below a value."));
}

template <class V>
inline constexpr auto kSort = method<&V::Sort>("Sort", {opt("pAscending", true)},
                                               "Sorts the elements; equal ones keep their order.");

template <class V>
constexpr auto StatisticsRows() {
  return rows(method<&V::Min>("Min", "The smallest element."), method<&V::Max>("Max", "The largest element."),
              method<&V::Sum>("Sum", "The sum of the valid elements."));
}

template <class V>
inline constexpr auto kNrValid = method<&V::NrValid>("NrValid",
                                                     "The number of elements that are not the invalid value.");
template <class V>
inline constexpr auto kLetBlockSize = let<&V::LetBlockSize>("BlockSize",
                                                            "The number of slots by which the storage grows.");

template <class V>
constexpr auto NumberVectorTable(auto pDefault) {
  return table(kVectorType<V>, kVectorSize<V>, kLetVectorSize<V>, ElementRows<V>(pDefault), kAddUniqueValue<V>,
               LookUpRows<V>(), ClosestRows<V>(), kSort<V>, StatisticsRows<V>(), kNrValid<V>, ObjectRows<V>(),
               kLetBlockSize<V>);
}

template <>
inline constexpr auto members<CDblVector> = NumberVectorTable<CDblVector>(kInvalidDouble);
template <>
inline constexpr auto members<CLngVector> = NumberVectorTable<CLngVector>(kInvalidLong);

template <>
inline constexpr auto members<CStrVector> = table(kVectorSize<CStrVector>, kLetVectorSize<CStrVector>,
                                                  ElementRows<CStrVector>(kInvalidString), kAddUniqueValue<CStrVector>,
                                                  LookUpRows<CStrVector>(), kSort<CStrVector>, kNrValid<CStrVector>,
                                                  ObjectRows<CStrVector>(), kLetBlockSize<CStrVector>);

// The let of the size stands before its get here.
template <>
inline constexpr auto members<CBoolVector> = table(kVectorType<CBoolVector>, kLetVectorSize<CBoolVector>,
                                                   kVectorSize<CBoolVector>, ElementRows<CBoolVector>(false),
                                                   LookUpRows<CBoolVector>(), ObjectRows<CBoolVector>());

template <>
inline constexpr auto members<CVector> =
    table(get<&CVector::VarType>("VarType", "The declared value type, by which the elements are saved."),
          let<&CVector::LetVarType>("VarType"), kVectorSize<CVector>, kLetVectorSize<CVector>, kVectorText<CVector>,
          kValue<CVector>, kLetValue<CVector>, InsertRows<CVector>(kInvalidDouble), kAddUniqueValue<CVector>,
          LookUpRows<CVector>(), kSort<CVector>, ObjectRows<CVector>(), kLetBlockSize<CVector>);

template <>
inline constexpr auto members<CObjVector> = table(
    get<&CObjVector::Size>("Size", "The number of objects."), let<&CObjVector::LetSize>("Size"),
    get<&CObjVector::Ref>("Ref", {"pIndex"}, "The object at an index from 1, itself."),
    let<&CObjVector::LetRef>("Ref", {"pIndex"}),
    get<&CObjVector::Copy>("Copy", {"pIndex"}, "A copy of the object at an index."),
    get<&CObjVector::Key>("Key", {"pIndex"}, "The key at an index."), let<&CObjVector::LetKey>("Key", {"pIndex"}),
    method<&CObjVector::ReplaceObject>("ReplaceObject", {"pIndex", "pKey", "pValue"},
                                       "Stores a key and a copy of an object at an index."),
    method<&CObjVector::AddObject>("AddObject", {"pKey", "pValue"}, "Appends a key and a copy of an object."),
    method<&CObjVector::DeleteObject>("DeleteObject", {"pIndex"}, "Removes a key and its object."),
    method<&CObjVector::GetUniqueKey>(
        "GetUniqueKey", {"pKey"}, "A key with the first number behind it that no object has, if it has to have one."),
    method<&CObjVector::Index>("Index", {"pKey"}, "The first index with a key, -1 if there is none."),
    method<&CObjVector::KeyVec>("KeyVec", "All keys in order."), CopyRows<CObjVector>(), SaveRows<CObjVector>(),
    kLetBlockSize<CObjVector>);

template <>
inline constexpr auto members<CDblVectors> = table(
    get<&CDblVectors::Size>("Size", "The number of vectors."), let<&CDblVectors::LetSize>("Size"),
    get<&CDblVectors::Vector>("Vector", {"pIdx"}, "A copy of the vector at an index; set stores a vector itself."),
    let<&CDblVectors::LetVector>("Vector", {"pIdx"}), set<&CDblVectors::SetVector>("Vector", {"pIdx"}),
    method<&CDblVectors::InsertVector>("InsertVector", {"pVector", "pPos"},
                                       "Inserts a copy of a vector; a position outside appends it."),
    method<&CDblVectors::AddVector>("AddVector", {"pVector"}, "Appends a copy of a vector."),
    method<&CDblVectors::DeleteVector>("DeleteVector", {"pIdx"}, "Removes a vector."),
    method<&CDblVectors::VectorRef>("VectorRef", {"pIdx"}, "The vector at an index, itself."), CopyRows<CDblVectors>(),
    IsEqualRow<CDblVectors>(),
    let<&CDblVectors::LetBlockSize>("BlockSize", "The number of slots by which the storage of every vector grows."),
    SaveRows<CDblVectors>());

// ---- The matrices. In CMatrix all gets stand before their lets, and parameters have no prefix.

template <class M>
inline constexpr bool kIsPlainMatrix = std::is_same_v<M, CMatrix>;

template <class M>
constexpr auto MatrixProperty(const auto& pGet, const auto& pLet) {
  if constexpr (kIsPlainMatrix<M>)
    return rows(pGet, pLet);
  else
    return rows(pLet, pGet);
}

template <class M>
constexpr const char* MatrixName(const char* pName) {
  return kIsPlainMatrix<M> ? pName + 1 : pName;
}

template <class M>
constexpr auto MatrixSizeRows() {
  const Parameter atPos = MatrixName<M>("pAtPos"), col = MatrixName<M>("pColIdx"), row = MatrixName<M>("pRowIdx");
  return rows(
      MatrixProperty<M>(get<&M::NrCols>("NrCols", "The number of columns."), let<&M::LetNrCols>("NrCols")),
      MatrixProperty<M>(get<&M::NrRows>("NrRows", "The number of rows."), let<&M::LetNrRows>("NrRows")),
      method<&M::InsertCol>("InsertCol", {atPos}, "Inserts a column; a position outside appends it."),
      method<&M::DeleteCol>("DeleteCol", {col}, "Removes a column."),
      method<&M::InsertRow>("InsertRow", {atPos}, "Inserts a row; a position outside appends it."),
      method<&M::DeleteRow>("DeleteRow", {row}, "Removes a row."),
      method<&M::AddRow>("AddRow", {MatrixName<M>("pRow")}, "Appends a copy of a vector, which keeps its length."));
}

template <class M>
constexpr auto MatrixElementRows() {
  const Parameter col = MatrixName<M>("pColIdx"), row = MatrixName<M>("pRowIdx");
  return rows(MatrixProperty<M>(get<&M::Value>("Value", {col, row}, "The element of a column and row, both from 1."),
                                let<&M::LetValue>("Value", {col, row})),
              get<&M::Col>("Col", {col}, "A copy of a column."), let<&M::LetCol>("Col", {col}),
              get<&M::Row>("Row", {row}, "A copy of a row."), let<&M::LetRow>("Row", {row}),
              get<&M::RowRef>("RowRef", {row}, "A row itself."));
}

template <class M>
constexpr auto MatrixTable() {
  return table(MatrixSizeRows<M>(), MatrixElementRows<M>(),
               method<&M::Sort>("Sort", {MatrixName<M>("pCol"), opt(MatrixName<M>("pAscending"), true)},
                                "Sorts the rows by a column; equal ones keep their order."),
               method<&M::InverseRowOrder>("InverseRowOrder", "Puts the last row first."),
               ObjectRows<M>(MatrixName<M>("pSource"), MatrixName<M>("pCompare")));
}

template <>
inline constexpr auto members<CDblMatrix> = MatrixTable<CDblMatrix>();
template <>
inline constexpr auto members<CMatrix> = MatrixTable<CMatrix>();

}  // namespace qzbase::automation
