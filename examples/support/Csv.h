// A table of texts read from comma-separated values: fields may stand in double quotes, a doubled quote inside means
// one.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct CsvTable {
  std::vector<std::u16string> header;
  std::vector<std::vector<std::u16string>> rows;  // each as long as the header
};

// `pBytes` is UTF-8. Throws std::runtime_error, naming the line, where a row has another number of fields than the
// header.
CsvTable ParseCsv(std::string_view pBytes);
