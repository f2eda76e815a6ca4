// Shows what a saved buffer holds, one record a line: where it begins, its kind and its value, indented by tags.
//
//   qzdump FILE.qzb
//
// Ends with 1 where the file is no buffer, or holds bytes that are no record.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "qzbase/persist/CBuffer.h"
#include "tools/qzdump/RecordReader.h"

using namespace qzbase;

namespace {

bool ReadFile(const char* pPath, std::vector<std::uint8_t>& pBytes) {
  std::ifstream file(pPath, std::ios::binary);
  pBytes.assign(std::istreambuf_iterator<char>(file), {});
  return !file.bad() && file.is_open();
}

std::uint32_t CheckSum(std::vector<std::uint8_t> pBytes) {
  pBytes.push_back(0);  // the array of a buffer has one byte more than its data
  CBuffer buffer;
  buffer.LetByteArray({0, std::move(pBytes)});
  return static_cast<std::uint32_t>(buffer.CheckSum());
}

// False where the bytes stop being records.
bool Show(RecordReader& pReader) {
  std::size_t depth = 0;
  for (Record record; pReader.Next(record);) {
    const bool isTag = record.kind == "tag";
    const bool closes = isTag && record.text.starts_with('\\');
    if (closes && depth > 0) --depth;
    const std::string indent(2 * depth, ' ');
    if (isTag)
      std::printf("%8zu  %s%s\n", record.offset, indent.c_str(), record.text.c_str());
    else
      std::printf("%8zu  %s%-8s %s\n", record.offset, indent.c_str(), std::string(record.kind).c_str(),
                  record.text.c_str());
    if (record.kind.empty()) return false;
    if (isTag && !closes) ++depth;
  }
  return true;
}

}  // namespace

int main(int pCount, char** pArguments) {
  if (pCount != 2) {
    std::fprintf(stderr, "usage: qzdump FILE\n");
    return 2;
  }
  std::vector<std::uint8_t> bytes;
  if (!ReadFile(pArguments[1], bytes)) {
    std::fprintf(stderr, "qzdump: %s: cannot be read\n", pArguments[1]);
    return 1;
  }
  RecordReader reader(bytes);
  std::printf("%s: %zu bytes, checksum %08X\n", pArguments[1], bytes.size(), CheckSum(bytes));
  if (!reader.HasMarkers()) {
    std::fprintf(stderr, "qzdump: %s: no buffer whose records carry markers\n", pArguments[1]);
    return 1;
  }
  return Show(reader) ? 0 : 1;
}
