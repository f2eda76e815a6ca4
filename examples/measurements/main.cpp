// From a file of comma-separated measurements to typed vectors, statistics and one saved buffer, and back.
//
//   measurements FILE.csv OUTPUT.qzb     reads, shows, saves, loads again and compares
//   measurements FILE.qzb                shows what such a buffer file holds
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "examples/measurements/Measurements.h"
#include "qzbase/core/GCMath.h"
#include "qzbase/core/QZVarType.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/NumberText.h"

using namespace qzbase;

namespace {

std::string ReadFile(const std::string& pPath) {
  std::ifstream file(pPath, std::ios::binary);
  if (!file) throw std::runtime_error("cannot be read");
  return {std::istreambuf_iterator<char>(file), {}};
}

void SaveFile(const std::string& pPath, CBuffer& pBuffer) {
  const runtime::Array<std::uint8_t> bytes = pBuffer.ByteArray();
  std::ofstream file(pPath, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.Elements().data()), bytes.Size());
  if (!file.flush()) throw std::runtime_error("cannot be written");
}

Ref<CBuffer> LoadFile(const std::string& pPath) {
  const std::string content = ReadFile(pPath);
  auto buffer = New<CBuffer>();
  buffer->LetByteArray(runtime::Array<std::uint8_t>(0, {content.begin(), content.end()}));
  return buffer;
}

std::string Text(double pValue) {
  return os::ToUtf8(runtime::NumberText(pValue));
}

void ShowNumbers(const std::string& pName, const CDblVector& pValues) {
  const std::int32_t missing = pValues.Size() - pValues.NrValid();
  // The statistics of a series with gaps are those of its valid values.
  CDblVector valid;
  for (std::int32_t i = 1; i <= pValues.Size(); ++i)
    if (pValues.Value(i) != kInvalidDouble) valid.AddValue(pValues.Value(i));
  double mean = 0;
  double deviation = 0;
  GCMath::CalcMean(valid, mean, deviation);
  std::printf("  %-14s %6d %8d %10s %10s %10s %10s\n", pName.c_str(), pValues.Size(), missing,
              Text(valid.Min()).c_str(), Text(valid.Max()).c_str(), Text(GCMath::RoundSigFigs(mean, 6)).c_str(),
              Text(GCMath::RoundSigFigs(deviation, 6)).c_str());
}

void ShowTexts(const std::string& pName, const CStrVector& pValues) {
  const std::int32_t size = pValues.Size();
  std::printf("  %-14s %6d          from \"%s\" to \"%s\"\n", pName.c_str(), size,
              size > 0 ? os::ToUtf8(pValues.Value(1)).c_str() : "",
              size > 0 ? os::ToUtf8(pValues.Value(size)).c_str() : "");
}

void Show(const Measurements& pMeasurements) {
  std::printf("  %-14s %6s %8s %10s %10s %10s %10s\n", "column", "number", "missing", "minimum", "maximum", "mean",
              "deviation");
  for (const Column& column : pMeasurements.Columns()) {
    const std::string name = os::ToUtf8(column.name);
    if (const auto* numbers = std::get_if<Ref<CDblVector>>(&column.values))
      ShowNumbers(name, **numbers);
    else
      ShowTexts(name, *std::get<Ref<CStrVector>>(column.values));
  }
}

void ShowDump(CBuffer& pBuffer) {
  constexpr std::size_t kLines = 5;
  constexpr std::size_t kWidth = 100;
  const std::string dump = os::ToUtf8(pBuffer.GetString());
  std::size_t start = 0;
  for (std::size_t line = 0; line < kLines && start < dump.size(); ++line) {
    const std::size_t end = std::min(dump.find('\n', start), dump.size());
    const bool cut = end - start > kWidth;
    std::printf("  %s%s\n", dump.substr(start, cut ? kWidth : end - start).c_str(), cut ? " ..." : "");
    start = end + 1;
  }
}

void ConvertCsv(const std::string& pCsvPath, const std::string& pOutputPath, std::string& pFileAtWork) {
  pFileAtWork = pCsvPath;
  const Measurements measurements = Measurements::FromCsv(ParseCsv(ReadFile(pCsvPath)));
  std::printf("%s\n", pCsvPath.c_str());
  Show(measurements);

  pFileAtWork = pOutputPath;
  CBuffer buffer;
  measurements.SaveToBuffer(buffer);
  SaveFile(pOutputPath, buffer);
  const Ref<CBuffer> loaded = LoadFile(pOutputPath);
  const bool equal = Measurements::LoadFromBuffer(*loaded).IsEqual(measurements) && loaded->BinaryEqual(buffer);
  std::printf("\nSaved %d bytes into %s, checksum %08X; loaded again: %s.\n", buffer.Size(), pOutputPath.c_str(),
              static_cast<unsigned>(buffer.CheckSum()), equal ? "equal" : "NOT EQUAL");
  std::printf("\nThe first lines of the dump:\n");
  ShowDump(*loaded);
  if (!equal) throw std::runtime_error("does not read back as it was written");
}

void ShowBufferFile(const std::string& pPath) {
  const Ref<CBuffer> buffer = LoadFile(pPath);
  Show(Measurements::LoadFromBuffer(*buffer));
  ShowDump(*buffer);
}

}  // namespace

int main(int pCount, char** pArguments) {
  if (pCount != 2 && pCount != 3) {
    std::fprintf(stderr, "usage: measurements FILE.csv OUTPUT.qzb | measurements FILE.qzb\n");
    return 2;
  }
  std::string file = pArguments[1];
  try {
    if (pCount == 3)
      ConvertCsv(pArguments[1], pArguments[2], file);
    else
      ShowBufferFile(file);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "measurements: %s: %s\n", file.c_str(), error.what());
    return 1;
  }
  return 0;
}
