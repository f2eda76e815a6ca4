// The members of entry data and of the table.
#pragma once

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/members/ObjectRows.h"
#include "qzbase/data/CEntryData.h"
#include "qzbase/data/CTable.h"

namespace qzbase::automation {

template <>
inline constexpr auto members<CEntryData> =
    table(method<&CEntryData::Clear>("Clear", "Removes all columns and rows."),
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
inline constexpr auto members<CTable> =
    table(get<&CTable::ID>("ID", "The identifier."), let<&CTable::LetID>("ID"),
          method<&CTable::Clear>("Clear", "Removes all columns and rows; the identifier stays."), TableColumnRows(),
          TableRowRows(), method<&CTable::InverseRowOrder>("InverseRowOrder", "Does nothing."),
          method<&CTable::Sort>("Sort", {"pCol", opt("pAscending", true)},
                                "Sorts the rows by a column; equal ones keep their order."),
          method<&CTable::GetString>("GetString", "A line of identifiers, then the rows, as users see their values."),
          method<&CTable::SetupFrom>("SetupFrom", {"pDesc"}, "Takes copies of descriptors and has no rows afterwards."),
          method<&CTable::CopyFromInfo>("CopyFromInfo", {"pInfo"}, "Takes the values of a record as its one row."),
          ObjectRows<CTable>());

}  // namespace qzbase::automation
