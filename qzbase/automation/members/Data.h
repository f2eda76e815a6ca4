// The members of the data containers.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CEntryData.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CTable.h"
#include "qzbase/data/TPoint.h"

namespace qzbase::automation {

template <>
inline constexpr auto fields<TPoint> = record(field<&TPoint::X>("X", "The abscissa."),
                                              field<&TPoint::Y>("Y", "The ordinate."));

// ---- The typed vectors: the rows that they share, in the order in which they stand.

template <class V>
inline constexpr auto kVectorType = method<&V::VarType>("VarType", "The value type of the elements.");
template <class V>
inline constexpr auto kVectorSize = get<&V::Size>("Size", "The number of elements.");
template <class V>
inline constexpr auto kLetVectorSize = let<&V::LetSize>("Size");

// `pDefault` is the value that InsertValue takes when none is given.
template <class V>
constexpr auto ElementRows(auto pDefault) {
  return rows(method<&V::SetFromArray>("SetFromArray", {byRef("InArray")}, "Takes the elements of an array."),
              method<&V::GetArray>("GetArray", "All slots of the storage, which are at least as many as elements."),
              method<&V::SetFromString>("SetFromString", {"pString"}, "Takes the elements from a text like (1;2;3)."),
              method<&V::GetString>("GetString", "The elements as a text like (1;2;3)."),
              let<&V::LetValue>("Value", {"pIndex"}),
              get<&V::Value>("Value", {"pIndex"}, "The element at an index from 1."),
              method<&V::InsertValue>("InsertValue", {"pAtPos", opt("pValue", pDefault)},
                                      "Inserts an element; a position outside appends it."),
              method<&V::AddValue>("AddValue", {"pValue"}, "Appends an element."));
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

// ---- The tables.

template <>
inline constexpr auto members<CEntryData> = table(
    method<&CEntryData::Clear>("Clear", "Removes all columns and rows."),
    get<&CEntryData::NrCols>("NrCols", "The number of columns; new ones have no values yet."),
    let<&CEntryData::LetNrCols>("NrCols"),
    get<&CEntryData::VarType>("VarType", {"pIdx"}, "The value type of a column; another one drops its values."),
    let<&CEntryData::LetVarType>("VarType", {"pIdx"}),
    get<&CEntryData::Col>("Col", {"pIdx"}, "A column itself; set to store an object, let to copy its contents."),
    set<&CEntryData::SetCol>("Col", {"pIdx"}), let<&CEntryData::LetCol>("Col", {"pIdx"}),
    method<&CEntryData::InsertCol>("InsertCol", {"pVarType", "pPos"},
                                   "Inserts a column of a type; a position outside appends it."),
    method<&CEntryData::AddCol>("AddCol", {"pVarType"}, "Appends a column of a type."),
    method<&CEntryData::MoveCol>("MoveCol", {"pOldPos", "pNewPos"}, "Moves a column to another position."),
    method<&CEntryData::DeleteCol>("DeleteCol", {"pIdx"}, "Removes a column."),
    get<&CEntryData::NrRows>("NrRows", "The number of rows."), let<&CEntryData::LetNrRows>("NrRows"),
    method<&CEntryData::InsertRow>("InsertRow", {"pAtPos"},
                                   "Inserts a row of invalid values; a position outside appends it."),
    method<&CEntryData::AddRow>("AddRow", "Appends a row of invalid values."),
    method<&CEntryData::DeleteRow>("DeleteRow", {"pIdx"}, "Removes a row."),
    get<&CEntryData::Value>("Value", {"pColIdx", "pRowIdx"}, "The value of a column and row, both from 1."),
    let<&CEntryData::LetValue>("Value", {"pColIdx", "pRowIdx"}),
    method<&CEntryData::Sort>("Sort", {"pColIdx", "pAscending"},
                              "Sorts the rows by a column; equal ones keep their order."),
    method<&CEntryData::CopyFromValues>("CopyFromValues", {"pSource"}, "Takes over the columns of a matrix."),
    ObjectRows<CEntryData>());

constexpr auto TableColumnRows() {
  return rows(
      get<&CTable::NrCols>("NrCols", "The number of columns."), let<&CTable::LetNrCols>("NrCols"),
      get<&CTable::ColDesc>("ColDesc", {"pColIdx"},
                            "A copy of a column's descriptor; set to store an object, let to copy its contents."),
      set<&CTable::SetColDesc>("ColDesc", {"pColIdx"}), let<&CTable::LetColDesc>("ColDesc", {"pColIdx"}),
      get<&CTable::ColDescRef>("ColDescRef", {"pColIdx"}, "A column's descriptor itself."),
      method<&CTable::AddCol>("AddCol", {"pDesc"}, "Appends a column, whose descriptor is the object itself."),
      method<&CTable::InsertCol>("InsertCol", {"pDesc", "pAtPos"},
                                 "Inserts a column and a copy of its descriptor; a position outside appends them."),
      method<&CTable::MoveCol>("MoveCol", {"pOldPos", "pNewPos"}, "Moves a column to another position."),
      method<&CTable::DeleteCol>("DeleteCol", {"pAtPos"}, "Removes a column and its descriptor."),
      method<&CTable::ColIndex>("ColIndex", {"pID"}, "The position of the column with an identifier, -1 if none has."),
      method<&CTable::ColRef>("ColRef", {"pIndex"}, "The values of a column, as the vector itself."));
}

constexpr auto TableRowRows() {
  return rows(get<&CTable::NrRows>("NrRows", "The number of rows."), let<&CTable::LetNrRows>("NrRows"),
              method<&CTable::AddRow>("AddRow", "Appends a row of invalid values."),
              method<&CTable::InsertRow>("InsertRow", {"pAtPos"},
                                         "Inserts a row of invalid values; a position outside appends it."),
              method<&CTable::DeleteRow>("DeleteRow", {"pAtPos"}, "Removes a row."),
              method<&CTable::Row>("Row", {"pRowIdx"}, "A row with the descriptors of its values, as a copy."),
              get<&CTable::DescsRef>("DescsRef", "The descriptors of the columns, as the list itself."),
              get<&CTable::DataRef>("DataRef", "The values of all columns, as the object itself."),
              get<&CTable::Value>("Value", {"pColIdx", "pRowIdx"}, "The value of a column and row, both from 1."),
              let<&CTable::LetValue>("Value", {"pColIdx", "pRowIdx"}));
}

template <>
inline constexpr auto members<CTable> = table(
    get<&CTable::ID>("ID", "The identifier."), let<&CTable::LetID>("ID"),
    method<&CTable::Clear>("Clear", "Removes all columns and rows; the identifier stays."), TableColumnRows(),
    TableRowRows(), method<&CTable::InverseRowOrder>("InverseRowOrder", "Does nothing."),
    method<&CTable::Sort>("Sort", {"pCol", opt("pAscending", true)},
                          "Sorts the rows by a column; equal ones keep their order."),
    method<&CTable::GetString>("GetString", "A line of identifiers, then the rows, as users see their values."),
    method<&CTable::SetupFrom>("SetupFrom", {"pDesc"}, "Takes copies of descriptors and has no rows afterwards."),
    method<&CTable::CopyFromInfo>("CopyFromInfo", {"pInfo"}, "Takes the values of a record as its one row."),
    ObjectRows<CTable>());

}  // namespace qzbase::automation
