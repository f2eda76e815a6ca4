#include "examples/support/Files.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

using namespace qzbase;

std::string ReadFile(const std::string& pPath) {
  std::ifstream file(pPath, std::ios::binary);
  if (!file) throw std::runtime_error("cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

void SaveFile(const std::string& pPath, const CBuffer& pBuffer) {
  const runtime::Array<std::uint8_t> bytes = pBuffer.ByteArray();
  std::ofstream file(pPath, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.Elements().data()), pBuffer.Size());
  if (!file.flush()) throw std::runtime_error("cannot be written");
}

Ref<CBuffer> LoadFile(const std::string& pPath) {
  std::string content = ReadFile(pPath);
  content += '\0';  // the array of a buffer has one byte more than its data
  auto buffer = New<CBuffer>();
  buffer->LetByteArray(runtime::Array<std::uint8_t>(0, {content.begin(), content.end()}));
  return buffer;
}
