#include "examples/support/Csv.h"

#include <stdexcept>
#include <utility>

#include "qzbase/os/Utf8.h"

namespace {

// Takes one row off the front of `pBytes`.
std::vector<std::u16string> TakeRow(std::string_view& pBytes) {
  std::vector<std::u16string> fields;
  std::string field;
  bool quoted = false;
  std::size_t i = 0;
  for (; i < pBytes.size(); ++i) {
    const char c = pBytes[i];
    if (quoted) {
      if (c != '"')
        field += c;
      else if (pBytes.substr(i + 1).starts_with('"'))
        field += pBytes[i++];
      else
        quoted = false;
    } else if (c == '"') {
      quoted = true;
    } else if (c == ',') {
      fields.push_back(qzbase::os::FromUtf8(std::exchange(field, {})));
    } else if (c == '\n') {
      break;
    } else if (c != '\r') {
      field += c;
    }
  }
  pBytes.remove_prefix(i < pBytes.size() ? i + 1 : i);
  fields.push_back(qzbase::os::FromUtf8(field));
  return fields;
}

}  // namespace

CsvTable ParseCsv(std::string_view pBytes) {
  CsvTable table;
  if (pBytes.starts_with("\xEF\xBB\xBF")) pBytes.remove_prefix(3);
  table.header = TakeRow(pBytes);
  for (int line = 2; !pBytes.empty(); ++line) {
    auto row = TakeRow(pBytes);
    if (row.size() == 1 && row[0].empty()) continue;
    if (row.size() != table.header.size())
      throw std::runtime_error("line " + std::to_string(line) + " has " + std::to_string(row.size()) +
                               " fields, the header has " + std::to_string(table.header.size()));
    table.rows.push_back(std::move(row));
  }
  return table;
}
