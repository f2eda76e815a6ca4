// Runs a fuzz target over every file of a folder, for builds without a fuzzer: what once crashed must not crash again.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize);

int main(int pCount, char** pArguments) {
  int files = 0;
  for (int i = 1; i < pCount; ++i)
    for (const auto& entry : std::filesystem::directory_iterator(pArguments[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++files;
    }
  std::printf("%d inputs replayed\n", files);
  return files > 0 ? 0 : 1;
}
